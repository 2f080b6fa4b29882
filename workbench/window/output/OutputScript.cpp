#include "window/output/OutputScript.h"

#include "project/OpenProject.h"
#include "project/output/outputFileNames.h"
#include "sheet/SheetPreview.h"
#include "window/files/chooseFileToSave.h"
#include "window/files/saveTextFile.h"
#include "window/files/SlowWork.h"
#include "window/output/addCaptions.h"
#include "window/output/OutputDialog.h"
#include "window/output/OutputEditor.h"
#include "window/script/ScriptPane.h"
#include "window/support/WindowMessages.h"
#include "window/support/WindowSettings.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QMainWindow>

namespace workbench {

OutputScript::OutputScript(OpenProject* project, OutputEditor* output, WindowMessages* messages,
                           ScriptPane* pane, SheetPreview* sheets)
    : m_project(project)
    , m_output(output)
    , m_messages(messages)
    , m_pane(pane)
    , m_sheets(sheets)
    , m_plots(project, messages, pane, sheets)
{
    m_pane->setKeywords(WindowSettings().keywords());
    connect(m_pane, &ScriptPane::keywordsChosen, this, &OutputScript::setKeywords);
    connect(m_output, &OutputEditor::choiceChanged, this, &OutputScript::refresh);
    connect(m_output, &OutputEditor::outputChosen, this, &OutputScript::showOther);
}

void OutputScript::clear()
{
    m_pane->setOtherScript(QString());
    Q_EMIT refreshed(true);
}

void OutputScript::refresh()
{
    if (!m_project->isOpen())
        return;
    const bool isFirst = !m_output->exists();
    OutputDialog* dialog = m_output->dialog();
    if (!dialog)
        return clear();
    const WaitCursor cursor;
    const QString script = dialog->script(m_pane->keywords());
    if (isFirst && m_pane->script().isEmpty())
        m_pane->setOtherScript(script);
    else
        m_pane->setScript(script);
    m_plots.follow(dialog);
    Q_EMIT refreshed(script.isEmpty());
    refreshSheets();
}

void OutputScript::showOther()
{
    OutputDialog* dialog = m_output->dialog();
    if (!dialog)
        return;
    const QString script = dialog->script(m_pane->keywords());
    m_pane->setOtherScript(script);
    m_plots.follow(dialog);
    Q_EMIT refreshed(script.isEmpty());
    refreshSheets();
}

void OutputScript::setKeywords(vkd::Language language)
{
    if (m_project->isOpen() && !m_output->dialog())
        return m_pane->setKeywords(WindowSettings().keywords()); // restores the previous keywords
    WindowSettings().setKeywords(language);
    if (m_project->isOpen())
        showOther();
}

/// Updates the pane first, because it normally shows a change only after the events that cause the
/// change have been processed.
QString OutputScript::script()
{
    if (m_output->exists())
        m_output->dialog()->finishChanges();
    return m_pane->script();
}

void OutputScript::copy()
{
    QApplication::clipboard()->setText(script());
    m_messages->say(tr("The script has been copied to the clipboard."));
}

QString OutputScript::proposedFile(const char* suffix) const
{
    const OutputList& outputs = m_output->outputs();
    QString name = m_project->name();
    if (outputs.size() > 1)
        name += QLatin1String(" - ") +
                outputFileNames(outputs.names(), QString()).at(outputs.currentIndex());
    return QDir(m_project->folder()).filePath(name + QLatin1String(suffix));
}

void OutputScript::save()
{
    const QString path =
        chooseFileToSave(m_messages->window(), tr("Save Script"), proposedFile(".dat"),
                         tr("Scripts (*.dat)") + QLatin1String(";;") + tr("All files (*)"),
                         QStringLiteral("dat"), m_project->path());
    if (path.isEmpty())
        return;
    if (saveTextFile(path, script(), m_messages))
        m_messages->say(tr("The script has been saved as %1.").arg(QDir::toNativeSeparators(path)));
}

SheetPlan OutputScript::newSheetPlan()
{
    SheetPlan plan = m_plans.planOf(script());
    addCaptions(&plan, m_output->dialog(), m_project->handle());
    return plan;
}

void OutputScript::refreshSheets()
{
    if (m_project->isOpen() && m_output->exists() && m_areSheetsVisible)
        m_sheets->setPlan(newSheetPlan());
}

void OutputScript::setSheetsVisible(bool visible)
{
    m_areSheetsVisible = visible;
    refreshSheets();
}

void OutputScript::exportSheets()
{
    QWidget* window = m_messages->window();
    const QString path =
        chooseFileToSave(window, tr("Export Sheets"), proposedFile(".pdf"), tr("PDF files (*.pdf)"),
                         QStringLiteral("pdf"), m_project->path());
    if (path.isEmpty())
        return;
    switch (QString trouble; writeSheets(path, &trouble)) {
    case SheetExport::Done:
        return m_messages->say(
            tr("The sheets have been saved as %1.").arg(QDir::toNativeSeparators(path)));
    case SheetExport::Cancelled: return m_messages->say(tr("No sheet was saved."));
    case SheetExport::Failed: return m_messages->complainOfWriting(path, trouble);
    }
}

SheetExport OutputScript::writeSheets(const QString& path, QString* trouble)
{
    const SheetPlan plan = newSheetPlan();
    SlowWork work(m_messages->window(), tr("The sheets are being exported."), plan.pageCount());
    const auto goOn = [&work](int pages) { return work.goOn(pages); };
    return workbench::exportSheets(plan, m_sheets->painter(), path, goOn, trouble);
}

} // namespace workbench
