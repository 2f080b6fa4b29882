#pragma once

#include "record/RowsChange.h"

namespace plib {

/// Returns a message about effects of new groups for a row that the user may not expect, or an
/// empty string: groups that are also in other rows, which keep them, and groups of the other kind
/// that the row has lost, because each group dialog replaces the whole list. `before` contains the
/// previous groups of the row.
QString groupsNotice(const DesignRowList& rows, int row, const std::vector<int>& before);

} // namespace plib
