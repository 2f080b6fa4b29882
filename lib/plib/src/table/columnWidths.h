#pragma once

#include <vector>

namespace plib {

/// A column of a table. The columns fill the width of the page.
struct ColumnShare
{
    int width = 0;               ///< the initial width, which is also the smallest one
    bool isChosenByUser = false; ///< the user has set this width, which does not change
    int needed = 0;              ///< the width at which no text of the column is wrapped
};

/// Returns the widths of columns for an available width. They are never narrower than their initial
/// widths. Columns whose texts need more width get it first. All columns share the rest in
/// proportion to their initial widths.
std::vector<int> columnWidths(const std::vector<ColumnShare>& columns, int available);

} // namespace plib
