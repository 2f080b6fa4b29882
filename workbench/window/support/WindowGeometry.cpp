#include "window/support/WindowGeometry.h"

#include "window/support/WindowSettings.h"

#include <QEvent>
#include <QWidget>

namespace workbench {

namespace {
QString keyOf(const QWidget* window)
{
    return QStringLiteral("place/") + window->objectName();
}
} // namespace

WindowGeometry::WindowGeometry(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    window->restoreGeometry(WindowSettings().value(keyOf(window)).toByteArray());
    window->installEventFilter(this);
}

bool WindowGeometry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        WindowSettings().setValue(keyOf(m_window), m_window->saveGeometry());
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
