#include "fields/BoxExplanation.h"

#include <QChildEvent>
#include <QMessageBox>

namespace plib {

BoxExplanation::BoxExplanation(QObject* opener, const QString& text)
    : m_text(text)
{
    opener->installEventFilter(this);
}

/// Handles ChildPolished, because this event is sent after the box is complete and just before it
/// is shown.
bool BoxExplanation::eventFilter(QObject* opener, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished)
        if (auto box = qobject_cast<QMessageBox*>(static_cast<QChildEvent*>(event)->child()))
            box->setInformativeText(m_text);
    return QObject::eventFilter(opener, event);
}

} // namespace plib
