#pragma once

#include "vkd_qt_export.h"

#include <QIcon>

/// A numbered icon of the suite: 2125 groups, 2126 secondary groups. Any other number gives a null
/// icon. The icon scales; `size` is the side in pixels that it is going to be shown at.
VKD_QT_EXPORT QIcon vkd_qt_icon(int number, int size);
