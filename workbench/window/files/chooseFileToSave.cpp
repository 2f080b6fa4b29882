#include "window/files/chooseFileToSave.h"

#include "window/files/projectFiles.h"

#include <VKD_QT_MessageBox.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace workbench {

QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix, const QString& openProject)
{
    QFileDialog dialog(parent, title, QString(), filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(proposal);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        if (path != openProject && !isSameFile(path, openProject)) // it may be missing
            return path;
        VKD_QT_MessageBox::warning(
            parent, title,
            QCoreApplication::translate("chooseFileToSave",
                                        "The project %1 is open.\nChoose another name.")
                .arg(QDir::toNativeSeparators(path)));
    }
    return QString();
}

} // namespace workbench
