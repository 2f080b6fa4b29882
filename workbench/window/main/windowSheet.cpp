// The main window and the preview of its sheets.

#include "sheet/exportSheets.h"
#include "sheet/readSheetPlan.h"
#include "sheet/sheetCaptions.h"
#include "sheet/SheetPreview.h"
#include "window/main/MainWindow.h"
#include "window/output/OutputDialog.h"
#include "window/output/ScriptPane.h"
#include "window/support/chooseFileToSave.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>

#include <QDir>
#include <QDockWidget>

namespace workbench {

SheetPlan MainWindow::newSheetPlan()
{
    SheetPlan plan = readSheetPlan(m_script->script());
    OutputDialog* dialog = output(); // none while the project cannot be read
    if (dialog)
        setCaptions(&plan, dialog->captions());
    QHash<int, QString> titles;
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(index()))
        titles.insert(loadCase.number, loadCase.title);
    setLoadCaseTitles(&plan, titles);
    return plan;
}

/// Nobody sees a preview that is closed or behind another one.
void MainWindow::refreshSheet()
{
    if (m_document && m_output && m_isSheetSeen)
        m_sheet->setPlan(newSheetPlan());
}

void MainWindow::showSheet()
{
    m_sheetDock->show();
    m_sheetDock->raise();
    m_sheet->setFocus();
}

void MainWindow::exportSheet()
{
    const QString proposal = QDir(folder()).filePath(
        QFileInfo(m_document->path()).completeBaseName() + QLatin1String(".pdf"));
    const QString path =
        chooseFileToSave(this, tr("Export Sheets"), proposal, tr("PDF files (*.pdf)"),
                         QStringLiteral("pdf"), m_document->path());
    if (path.isEmpty())
        return;
    QString trouble;
    switch (exportSheets(newSheetPlan(), m_sheet->painter(), path, this, &trouble)) {
    case SheetExport::Done:
        return say(tr("The sheets are saved in %1.").arg(QDir::toNativeSeparators(path)));
    case SheetExport::Cancelled: return say(tr("No sheet was saved."));
    case SheetExport::Failed: return complainOfWriting(path, trouble);
    }
}

} // namespace workbench
