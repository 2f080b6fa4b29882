#include "chooseFileToSave.h"

#include <QFileDialog>

namespace workbench {

QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix)
{
    QFileDialog dialog(parent, title, QString(), filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(proposal);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace workbench
