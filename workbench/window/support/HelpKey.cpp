#include "window/support/HelpKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

namespace workbench {

namespace {
constexpr char TopicProperty[] = "helpTopic";
}

void setHelpTopic(QWidget* widget, const char* topic)
{
    widget->setProperty(TopicProperty, QString::fromLatin1(topic));
}

QString helpTopic(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QString topic = widget->property(TopicProperty).toString();
        if (!topic.isEmpty())
            return topic;
    }
    return QString();
}

HelpKey::HelpKey(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    auto widget = static_cast<QWidget*>(watched);
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents) ||
        QApplication::activePopupWidget() || !isOfWindow(widget))
        return false;
    Q_EMIT helpWanted(widget);
    return true;
}

bool HelpKey::isOfWindow(const QWidget* widget) const
{
    while (widget && widget != m_window)
        widget = widget->parentWidget();
    return widget;
}

} // namespace workbench
