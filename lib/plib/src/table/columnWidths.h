#pragma once

#include <vector>

namespace plib {

/// A column of a table that fills the width of its page.
struct ColumnShare
{
    int width = 0;               ///< the initial width, which is also the smallest one
    bool isChosenByUser = false; ///< the user has set this width, which does not change
};

/// Returns the widths of columns for an available width. The columns share the width in proportion
/// to their initial widths and are never narrower than these.
std::vector<int> columnWidths(const std::vector<ColumnShare>& columns, int available);

} // namespace plib
