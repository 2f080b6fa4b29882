#pragma once

#include <QPixmap>

namespace plib {

/// Returns an icon of a divided sheet, 32 by 32 pixels. The IDs 0 to 3 select a portrait sheet,
/// divided into 1, 2, 4 or 6 pictures. The IDs 4 and 5 select a landscape sheet with 1 or 4
/// pictures.
QPixmap pageSplitPicture(int id);

} // namespace plib
