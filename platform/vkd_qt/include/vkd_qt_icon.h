#pragma once

#include "vkd_qt_export.h"

#include <QIcon>

/// Returns a numbered icon of the suite: 2125 groups, 2126 secondary groups. Any other number gives
/// a null icon. The icon is scalable; `size` is the intended side length in pixels.
VKD_QT_EXPORT QIcon vkd_qt_icon(int number, int size);
