#include "dialogs/GroupsLine.h"

#include <QKeyEvent>
#include <QToolTip>

namespace plib {

GroupsLine::GroupsLine(QWidget* covered)
    : QLineEdit(covered->parentWidget())
{
    setObjectName(QStringLiteral("groupsLine"));
    setAccessibleName(tr("Groups of the row"));
    setPlaceholderText(tr("e.g. 1-4, 7"));
    setGeometry(covered->geometry());
    covered->installEventFilter(this);
    setTabOrder(covered, this);
}

void GroupsLine::refuse(const QString& reason)
{
    setAccessibleDescription(reason);
    selectAll();
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), reason, this);
}

bool GroupsLine::eventFilter(QObject* covered, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        setGeometry(static_cast<QWidget*>(covered)->geometry());
    return QLineEdit::eventFilter(covered, event);
}

/// These keys must not reach the table or the dialog around it.
void GroupsLine::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: Q_EMIT entered(0); break;
    case Qt::Key_Up: Q_EMIT entered(-1); break;
    case Qt::Key_Down: Q_EMIT entered(1); break;
    case Qt::Key_Escape: Q_EMIT cancelled(); break;
    default: QLineEdit::keyPressEvent(event);
    }
}

/// A menu or another window takes the focus only temporarily.
void GroupsLine::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    for (Qt::FocusReason temporary :
         {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason})
        if (event->reason() == temporary)
            return;
    Q_EMIT left();
}

} // namespace plib
