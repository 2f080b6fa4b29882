#pragma once

#include <QPixmap>

namespace plib {

constexpr int PageSplitCount = 6;

/// Returns an icon of a divided sheet, 32 by 32 pixels. IDs 0 to 3 are portrait sheets with one
/// picture, and with two rows of one, two rows of two and three rows of two pictures. IDs 4 and 5
/// are landscape sheets with one picture and with two rows of two pictures.
QPixmap pageSplitPicture(int id);

} // namespace plib
