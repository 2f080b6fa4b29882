#pragma once

#include "DesignParameterData.h"

class DesignParameterTable;

namespace plib {

/// Marks the first cells of those rows that share groups with other rows: by a sign, a tool tip
/// that names the other rows, and the groups for hosts. Takes the marks of all others away.
void markSharedGroups(DesignParameterTable* table, const std::vector<DesignParameterRow>& rows);

} // namespace plib
