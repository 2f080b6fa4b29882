#include "window/outputs/OutputFiles.h"

#include "project/OpenProject.h"
#include "project/output/outputFileNames.h"
#include "project/WholeFiles.h"
#include "sheet/exportSheets.h"
#include "sheet/readSheetPlan.h"
#include "sheet/SheetPreview.h"
#include "window/files/SlowWork.h"
#include "window/output/addCaptions.h"
#include "window/output/OutputDialog.h"
#include "window/output/OutputEditor.h"
#include "window/support/WindowMessages.h"
#include "window/support/WindowSettings.h"

#include <VKD_QT_MessageBox.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>

namespace workbench {

OutputFiles::OutputFiles(const OpenProject* project, OutputEditor* editor, WindowMessages* messages,
                         SheetPreview* sheets)
    : m_project(project)
    , m_editor(editor)
    , m_messages(messages)
    , m_sheets(sheets)
{
}

/// Asks for a folder, and for confirmation if files would be replaced. Returns an empty list if the
/// user cancels.
QStringList OutputFiles::choosePaths(const QString& title, const QString& suffix)
{
    QWidget* window = m_messages->window();
    const QString folder = QFileDialog::getExistingDirectory(window, title, m_project->folder());
    if (folder.isEmpty())
        return {};
    QStringList paths = outputFileNames(m_editor->outputs().names(), suffix);
    QStringList existing;
    for (QString& path : paths) {
        if (QFileInfo::exists(QDir(folder).filePath(path)))
            existing << path;
        path = QDir(folder).filePath(path);
    }
    enum Button { Replace, Cancel };
    const bool mayReplace = existing.isEmpty() ||
                            VKD_QT_MessageBox::warning(
                                window, title,
                                tr("These files already exist:") + QLatin1String("\n\n") +
                                    existing.join(QLatin1Char('\n')),
                                tr("&Replace"), tr("Cancel"), QString(), Cancel, Cancel) == Replace;
    return mayReplace ? paths : QStringList();
}

/// Returns an empty list if the user cancels or the project cannot be read.
QStringList OutputFiles::scripts()
{
    QStringList scripts;
    SlowWork work(m_messages->window(), tr("The scripts are being generated."),
                  m_editor->outputs().size());
    const vkd::Language keywords = WindowSettings().keywords();
    const bool isDone = m_editor->forEachOutput([&](int output, OutputDialog* dialog) {
        scripts << dialog->script(keywords);
        return work.goOn(output);
    });
    return isDone ? scripts : QStringList();
}

void OutputFiles::complain(const WholeFiles& files)
{
    QString reason = files.reason();
    if (const QStringList replaced = files.replaced(); !replaced.isEmpty())
        reason += QLatin1Char('\n') + tr("Already replaced:") + QLatin1Char('\n') +
                  replaced.join(QLatin1Char('\n'));
    m_messages->complainOfWriting(files.failedPath(), reason);
}

/// Returns the end of a message: the outputs that have no script.
QString OutputFiles::skipped(const QStringList& scripts) const
{
    QStringList names;
    for (int output = 0; output < scripts.size(); ++output)
        if (scripts[output].isEmpty())
            names << m_editor->outputs().name(output);
    return names.isEmpty()
               ? QString()
               : QLatin1String(". ") +
                     tr("Outputs without plots: %1").arg(names.join(QLatin1String(", ")));
}

void OutputFiles::saveScripts()
{
    const QStringList paths = choosePaths(tr("Save All Scripts"), QStringLiteral(".dat"));
    const QStringList texts = paths.isEmpty() ? QStringList() : scripts();
    if (texts.isEmpty())
        return;
    WholeFiles files;
    for (int i = 0; i < texts.size(); ++i)
        if (!texts[i].isEmpty() && !files.add(paths[i], texts[i].toUtf8()))
            return complain(files);
    if (!files.commit())
        return complain(files);
    m_messages->say(tr("Scripts saved in %1: %2")
                        .arg(QDir::toNativeSeparators(QFileInfo(paths[0]).path()))
                        .arg(files.size()) +
                    skipped(texts));
}

void OutputFiles::exportSheets()
{
    const QStringList paths = choosePaths(tr("Export All Sheets"), QStringLiteral(".pdf"));
    const QStringList texts = paths.isEmpty() ? QStringList() : scripts();
    if (texts.isEmpty())
        return;
    int count = 0;
    m_editor->forEachOutput([&](int output, OutputDialog* dialog) {
        if (texts[output].isEmpty())
            return true;
        QString trouble;
        SheetPlan plan = readSheetPlan(texts[output]);
        addCaptions(&plan, dialog, m_project->handle());
        const SheetExport result = workbench::exportSheets(plan, m_sheets->painter(), paths[output],
                                                           m_messages->window(), &trouble);
        if (result == SheetExport::Failed)
            m_messages->complainOfWriting(paths[output], trouble);
        count += result == SheetExport::Done ? 1 : 0;
        return result == SheetExport::Done;
    });
    m_messages->say(tr("PDF files saved in %1: %2")
                        .arg(QDir::toNativeSeparators(QFileInfo(paths[0]).path()))
                        .arg(count) +
                    skipped(texts));
}

} // namespace workbench
