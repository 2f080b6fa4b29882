#pragma once

#include <QList>

class QDockWidget;
class QMainWindow;

namespace workbench {

/// Resizes docks like QMainWindow::resizeDocks(), but skips docks that have no place in the window,
/// such as floating docks. Qt prints a warning for them.
void resizeDocks(QMainWindow* window, const QList<QDockWidget*>& docks, const QList<int>& sizes,
                 Qt::Orientation orientation);

} // namespace workbench
