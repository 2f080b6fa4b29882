#include "sheet/actionButton.h"

#include <QToolButton>

namespace workbench {

QToolButton* actionButton(QAction* action, QWidget* parent)
{
    auto button = new QToolButton(parent);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setDefaultAction(action);
    return button;
}

} // namespace workbench
