#include "window/support/resizeDocks.h"

#include <QDockWidget>
#include <QMainWindow>

namespace workbench {

void resizeDocks(QMainWindow* window, const QList<QDockWidget*>& docks, const QList<int>& sizes,
                 Qt::Orientation orientation)
{
    QList<QDockWidget*> placed;
    QList<int> placedSizes;
    for (int i = 0; i < docks.size(); ++i)
        if (window->dockWidgetArea(docks[i]) != Qt::NoDockWidgetArea) {
            placed << docks[i];
            placedSizes << sizes[i];
        }
    window->resizeDocks(placed, placedSizes, orientation);
}

} // namespace workbench
