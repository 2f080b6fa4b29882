#pragma once

#include "record/DesignParameterData.h"

class DesignParameterTable;

namespace plib {

/// Marks the first cells of rows that share groups with other rows: with an icon, a tool tip that
/// names the other rows, and SharedGroupsRole for hosts. Removes the marks of all other rows.
void markSharedGroups(DesignParameterTable* table, const std::vector<DesignParameterRow>& rows);

} // namespace plib
