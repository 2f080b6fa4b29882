#include "fields/FieldHint.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace plib {

FieldHint::FieldHint(QWidget* field, const QString& text)
    : QObject(field)
    , m_text(text)
{
    field->installEventFilter(this);
}

bool FieldHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    auto field = static_cast<QWidget*>(watched);
    const QString own = field->toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       own.isEmpty() ? m_text : own + QLatin1Char('\n') + m_text, field);
    return true;
}

} // namespace plib
