#include "looks.h"

#include <QPalette>

namespace workbench {

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(42, 42, 42));
    palette.setColor(QPalette::Link, QColor(90, 160, 240));
    return palette;
}

} // namespace workbench
