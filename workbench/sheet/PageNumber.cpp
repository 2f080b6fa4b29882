#include "sheet/PageNumber.h"

#include <QKeyEvent>

namespace workbench {

PageNumber::PageNumber(QWidget* parent)
    : QSpinBox(parent)
{
    setObjectName(QStringLiteral("SheetPage"));
    setFocusPolicy(Qt::StrongFocus);
    setKeyboardTracking(false); // typing "12" must not show page 1 first
    setMinimum(1);
}

void PageNumber::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        event->ignore();
    else
        QSpinBox::keyPressEvent(event);
}

void PageNumber::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace workbench
