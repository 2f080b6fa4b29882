#pragma once

#include <QPixmap>

namespace plib {

constexpr int PageSplitCount = 6;

/// Returns a picture of a divided sheet, 32 by 32 pixels. Ids 0 to 3 are portrait sheets with one
/// picture, two rows, two by two, and three rows of two pictures; 4 and 5 are landscape sheets with
/// one picture and with two by two.
QPixmap pageSplitPicture(int id);

} // namespace plib
