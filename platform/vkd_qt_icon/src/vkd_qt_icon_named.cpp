#include "vkd_qt_icon_named.h"

#include "SvgIconEngine.h"

#include <QFile>

namespace vkd {
namespace qt {

QIcon icon(const QString& name)
{
    QFile file(name + QLatin1String(".svg"));
    if (!name.startsWith(QLatin1String(":/icon/")) || !file.open(QIODevice::ReadOnly))
        return QIcon();
    return QIcon(new SvgIconEngine(name, file.readAll()));
}

} // namespace qt
} // namespace vkd
