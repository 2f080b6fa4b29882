#pragma once

#include "record/RowsChange.h"

namespace plib {

/// Returns a title for a dialog that edits these rows: "Row 3: groups 1-40, 45". Row numbers in the
/// title start at 1. The groups of several rows are listed together.
QString rowTitle(const DesignRowList& rows, const std::set<int>& numbers);

/// Returns groups as text with ranges: "1-40, 45 and remaining groups".
QString groupList(const std::vector<int>& groups);

/// Returns the numbers of rows, which start at 1, as text with ranges: "1-3, 5".
QString rowList(std::vector<int> rows);

} // namespace plib
