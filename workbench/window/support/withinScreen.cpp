#include "window/support/withinScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace workbench {

namespace {
const QSize Frame(16, 40); // estimate; the frame size is unknown until the window is shown

/// Returns whether the platform is offscreen. Its screen does not limit windows, because
/// screenshots may be large.
bool isOffScreen()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}
} // namespace

void resizeWithinScreen(QWidget* window, const QSize& size)
{
    window->resize(isOffScreen() ? size
                                 : size.boundedTo(window->screen()->availableSize() - Frame));
}

void moveWithinScreen(QWidget* window, const QPoint& place)
{
    const QRect screen = window->screen()->availableGeometry();
    const QSize size = window->size() + Frame;
    const QPoint most = screen.bottomRight() - QPoint(size.width(), size.height());
    window->move(qMax(screen.left(), qMin(place.x(), most.x())),
                 qMax(screen.top(), qMin(place.y(), most.y())));
}

} // namespace workbench
