#pragma once

#include "vkd_qt_export.h"

#include <QIcon>

/// Returns one of the suite's numbered icons: 2125 for groups, 2126 for secondary groups. Returns a
/// null icon for any other number. The icon is scalable; `size` is the intended side length in
/// pixels.
VKD_QT_EXPORT QIcon vkd_qt_icon(int number, int size);
