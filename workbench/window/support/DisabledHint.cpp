#include "window/support/DisabledHint.h"

#include <QAbstractButton>
#include <QCursor>
#include <QEvent>
#include <QTimer>
#include <QToolTip>
#include <QWidget>

namespace workbench {

DisabledHint::DisabledHint(QWidget* widget, const QString& hint)
    : QObject(widget)
    , m_widget(widget)
    , m_hint(hint)
    , m_toolTip(widget->toolTip())
{
    widget->installEventFilter(this);
    for (auto button : widget->findChildren<QAbstractButton*>())
        button->installEventFilter(this); // even a disabled button accepts mouse events
    setToolTip();
}

void DisabledHint::setToolTip()
{
    m_widget->setToolTip(m_widget->isEnabled() ? m_toolTip : m_hint);
}

/// Qt also filters the mouse events of disabled widgets. It hides tool tips while it processes such
/// an event, so this tool tip is shown afterwards.
bool DisabledHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        setToolTip();
    const bool isClick =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    if (isClick && !m_widget->isEnabled())
        QTimer::singleShot(
            0, this, [this] { QToolTip::showText(QCursor::pos(), m_widget->toolTip(), m_widget); });
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
