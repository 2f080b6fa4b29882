#include "window/start/StartButton.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>

namespace workbench {

StartButton::StartButton(QAction* action, QWidget* parent)
    : QToolButton(parent)
{
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setFocusPolicy(Qt::StrongFocus);
    setDefaultAction(action);
}

/// The picture is the icon of the action, because the button would replace its own icon when the
/// action changes.
void StartButton::setPicture(const QString& file, const QSize& size)
{
    defaultAction()->setIcon(QIcon(file));
    defaultAction()->setIconVisibleInMenu(false);
    setIconSize(size);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

void StartButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}

} // namespace workbench
