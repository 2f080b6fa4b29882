#pragma once

#include "vkd_qt_icon_export.h"

#include <QIcon>

namespace vkd {
namespace qt {

/// The icon of the suite with this name, such as ":/icon/program/calculator". It is drawn in the
/// colours of the application's palette at the size asked for, so that it suits light and dark
/// desktops and any pixel ratio. An unknown name gives a null icon.
VKD_QT_ICON_EXPORT QIcon icon(const QString& name);

} // namespace qt
} // namespace vkd
