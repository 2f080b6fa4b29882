#pragma once

#include "vkd_qt_export.h"

#include <QStyleOptionViewItem>

/// Adapts the view options of an item view so that check boxes and grid lines stand out from the
/// background. Styles draw them in a darker shade of the window colour, which is invisible in dark
/// palettes. Light palettes are not changed.
VKD_QT_EXPORT QStyleOptionViewItem vkd_qt_visibleLines(QStyleOptionViewItem option);

/// Adapts a palette in the same way. `shareOfText` is the percentage of the text colour in the
/// colour of the lines; the rest is the background colour.
VKD_QT_EXPORT QPalette vkd_qt_visibleLines(QPalette palette, int shareOfText);
