#include "dialogs/rejectDialogs.h"

#include <QDialog>

void plib::rejectDialogs(const QWidget* parent)
{
    const auto dialogs = parent->findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDialog* dialog : dialogs) {
        dialog->setParent(nullptr);
        dialog->reject();
    }
}
