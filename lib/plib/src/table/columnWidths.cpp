#include "table/columnWidths.h"

#include <algorithm>

namespace plib {

/// Each column receives its part of the remaining width, so that rounding leaves no gap.
std::vector<int> columnWidths(const std::vector<ColumnShare>& columns, int available)
{
    int shared = 0; // sum of the initial widths of the columns that still need a part
    for (const ColumnShare& column : columns)
        (column.isChosenByUser ? available : shared) +=
            column.isChosenByUser ? -column.width : column.width;
    int left = std::max(available, shared);
    std::vector<int> widths;
    for (const ColumnShare& column : columns) {
        if (column.isChosenByUser || shared == 0) {
            widths.push_back(column.width);
            continue;
        }
        widths.push_back(int(static_cast<long long>(left) * column.width / shared));
        left -= widths.back();
        shared -= column.width;
    }
    return widths;
}

} // namespace plib
