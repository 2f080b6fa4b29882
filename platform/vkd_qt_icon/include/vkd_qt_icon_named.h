#pragma once

#include "vkd_qt_icon_export.h"

#include <QIcon>

namespace vkd {
namespace qt {

/// Returns the suite's icon with this name, such as ":/icon/program/calculator". It is drawn in the
/// colours of the application's palette at the requested size, so that it suits light and dark
/// desktops and any device pixel ratio. Returns a null icon if the name is unknown.
VKD_QT_ICON_EXPORT QIcon icon(const QString& name);

} // namespace qt
} // namespace vkd
