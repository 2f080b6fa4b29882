#include "window/support/isCellEditorOpen.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace workbench {

bool isCellEditorOpen(const QWidget* window)
{
    for (const QAbstractItemView* view : window->findChildren<QAbstractItemView*>())
        for (const QLineEdit* edit : view->viewport()->findChildren<QLineEdit*>())
            if (edit->isVisible())
                return true;
    return false;
}

} // namespace workbench
