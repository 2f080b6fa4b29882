#pragma once

#include "vkd_qt_export.h"

#include <QStyleOptionViewItem>

/// For viewOptions() of views with check boxes or a grid: what their cells are drawn with, where
/// both can be told from the ground. Styles take their colour from a darker shade of the window's,
/// which is lost on a dark ground. A light palette stays as it is.
VKD_QT_EXPORT QStyleOptionViewItem vkd_qt_visibleLines(QStyleOptionViewItem option);
