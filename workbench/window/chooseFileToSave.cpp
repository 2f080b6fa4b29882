#include "chooseFileToSave.h"

#include <VKD_QT_MessageBox.h>

#include <QFileDialog>

namespace workbench {

namespace {
/// The dialog asked for the name as it was typed, which is another file.
bool mayReplace(QWidget* parent, const QString& title, const QFileInfo& file)
{
    return !file.exists() || VKD_QT_MessageBox::warning(
                                 parent, title,
                                 QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                                     .arg(file.fileName()),
                                 QMessageBox::No, QMessageBox::Yes, 0) == QMessageBox::Yes;
}
} // namespace

QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix)
{
    QString path = proposal;
    do {
        path = QFileDialog::getSaveFileName(parent, title, path, filters);
        if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
            return path;
        path += QLatin1Char('.') + suffix;
    } while (!mayReplace(parent, title, QFileInfo(path)));
    return path;
}

} // namespace workbench
