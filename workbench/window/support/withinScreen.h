#pragma once

class QPoint;
class QSize;
class QWidget;

namespace workbench {

/// Resizes a window before it is shown, at most to the size of the screen without the window frame.
void resizeWithinScreen(QWidget* window, const QSize& size);

/// Moves a window to this position, or to the nearest position at which it fits on the screen.
void moveWithinScreen(QWidget* window, const QPoint& place);

} // namespace workbench
