#pragma once

#include "record/DesignParameterData.h"

class DesignParameterTable;

namespace plib {

/// Marks the first cell of each row that shares groups with other rows. The mark consists of an
/// icon, a tool tip that lists the other rows, and SharedGroupsRole for hosts. Removes the marks
/// from all other rows.
void markSharedGroups(DesignParameterTable* table, const std::vector<DesignParameterRow>& rows);

} // namespace plib
