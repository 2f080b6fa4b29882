#include "vkd_qt_icon_named.h"

#include "DrawnIconEngine.h"

namespace vkd {
namespace qt {

QIcon icon(const QString& name)
{
    const Drawing drawing = findDrawing(name);
    return drawing ? QIcon(new DrawnIconEngine(drawing)) : QIcon();
}

} // namespace qt
} // namespace vkd
