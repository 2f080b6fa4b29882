#pragma once

#include <QPixmap>

namespace plib {

constexpr int PageSplitCount = 6;

/// The picture of a sheet and its division, 32 by 32 pixels: 0 to 3 portrait with one picture, two
/// rows, two by two, three rows of two; 4 and 5 landscape with one picture and two by two.
QPixmap pageSplitPicture(int id);

} // namespace plib
