#pragma once

class QPoint;
class QSize;
class QWidget;

namespace workbench {

/// Gives a window that is not shown yet this size, or what the screen has room for with a frame
/// around it.
void resizeWithinScreen(QWidget* window, const QSize& size);

/// Moves it there, or as near as the screen has room for it.
void moveWithinScreen(QWidget* window, const QPoint& place);

} // namespace workbench
