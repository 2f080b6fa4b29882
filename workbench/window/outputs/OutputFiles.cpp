#include "window/outputs/OutputFiles.h"

#include "project/OpenProject.h"
#include "project/output/outputFileNames.h"
#include "project/WholeFiles.h"
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

#include <vector>

namespace workbench {

namespace {
QString lines(const QString& title, const QStringList& names)
{
    return names.isEmpty()
               ? QString()
               : QLatin1Char('\n') + title + QLatin1Char('\n') + names.join(QLatin1Char('\n'));
}
} // namespace

/// The files that are written for the outputs.
struct OutputFiles::Job
{
    QString folder;
    QStringList files;             ///< names in the folder
    QStringList scripts;           // empty if the sheets are exported
    std::vector<SheetPlan> sheets; // empty if the scripts are saved
    QStringList skipped;           ///< outputs without plots

    QString path(int file) const { return QDir(folder).filePath(files[file]); }
};

/// The files that have been exported, and the reason why the export has ended.
struct OutputFiles::Exported
{
    SheetExport end = SheetExport::Done;
    int files = 0;
    QString trouble;
};

OutputFiles::OutputFiles(const OpenProject* project, OutputEditor* editor, WindowMessages* messages,
                         SheetPreview* sheets)
    : m_project(project)
    , m_editor(editor)
    , m_messages(messages)
    , m_sheets(sheets)
{
}

/// Asks for a folder, and for confirmation if files would be replaced. Returns nothing if the user
/// cancels or the project cannot be read.
std::optional<OutputFiles::Job> OutputFiles::prepare(const QString& title, Content content)
{
    Job job;
    job.folder =
        QFileDialog::getExistingDirectory(m_messages->window(), title, m_project->folder());
    if (job.folder.isEmpty() || !generate(&job, content) || !mayReplace(title, job))
        return std::nullopt;
    return job;
}

/// Returns false if the user cancels or the project cannot be read.
bool OutputFiles::generate(Job* job, Content content)
{
    SlowWork work(m_messages->window(), tr("The scripts are being generated."),
                  m_editor->outputs().size());
    const vkd::Language keywords = WindowSettings().keywords();
    const QStringList names = outputFileNames(
        m_editor->outputs().names(), QLatin1String(content == Content::Scripts ? ".dat" : ".pdf"));
    return m_editor->forEachOutput([&](int output, OutputDialog* dialog) {
        const QString script = dialog->script(keywords);
        if (script.isEmpty())
            job->skipped << m_editor->outputs().name(output);
        else
            job->files << names[output];
        if (!script.isEmpty() && content == Content::Scripts)
            job->scripts << script;
        if (!script.isEmpty() && content == Content::Sheets) {
            job->sheets.push_back(readSheetPlan(script));
            addCaptions(&job->sheets.back(), dialog, m_project->handle());
        }
        return work.goOn(output + 1);
    });
}

bool OutputFiles::mayReplace(const QString& title, const Job& job)
{
    QStringList existing;
    for (int file = 0; file < job.files.size(); ++file)
        if (QFileInfo::exists(job.path(file)))
            existing << job.files[file];
    enum Button { Replace, Cancel };
    return existing.isEmpty() ||
           VKD_QT_MessageBox::warning(m_messages->window(), title,
                                      tr("These files already exist:") + QLatin1String("\n\n") +
                                          existing.join(QLatin1Char('\n')),
                                      tr("&Replace"), tr("Cancel"), QString(), Cancel,
                                      Cancel) == Replace;
}

void OutputFiles::saySaved(const QString& text, const Job& job)
{
    QString message = text;
    if (!job.skipped.isEmpty())
        message += QLatin1String(". ") +
                   tr("Outputs without plots: %1").arg(job.skipped.join(QLatin1String(", ")));
    m_messages->say(message);
}

void OutputFiles::complain(const WholeFiles& files)
{
    const QStringList replaced = files.replaced();
    m_messages->complainOfWriting(
        files.failedPath(), files.reason() + QLatin1Char('\n') +
                                (replaced.isEmpty() ? QLatin1Char('\n') + tr("No script was saved.")
                                                    : lines(tr("Already replaced:"), replaced)));
}

void OutputFiles::saveScripts()
{
    const std::optional<Job> job = prepare(tr("Save All Scripts"), Content::Scripts);
    if (!job)
        return;
    WholeFiles files;
    for (int file = 0; file < job->files.size(); ++file)
        if (!files.add(job->path(file), job->scripts[file].toUtf8()))
            return complain(files);
    if (!files.commit())
        return complain(files);
    saySaved(tr("Scripts saved in %1: %2")
                 .arg(QDir::toNativeSeparators(job->folder), QString::number(files.size())),
             *job);
}

/// The progress counts the pages of all files.
OutputFiles::Exported OutputFiles::writeSheets(const Job& job)
{
    int all = 0, before = 0;
    for (const SheetPlan& plan : job.sheets)
        all += plan.pageCount();
    SlowWork work(m_messages->window(), tr("The sheets are being exported."), all);
    const auto goOn = [&](int pages) { return work.goOn(before + pages); };
    Exported done;
    for (const SheetPlan& plan : job.sheets) {
        done.end = goOn(0) ? workbench::exportSheets(plan, m_sheets->painter(),
                                                     job.path(done.files), goOn, &done.trouble)
                           : SheetExport::Cancelled;
        if (done.end != SheetExport::Done)
            break;
        ++done.files;
        before += plan.pageCount();
    }
    return done;
}

void OutputFiles::exportSheets()
{
    const std::optional<Job> job = prepare(tr("Export All Sheets"), Content::Sheets);
    if (!job)
        return;
    const Exported done = writeSheets(*job);
    const QString folder = QDir::toNativeSeparators(job->folder);
    const QStringList saved = job->files.mid(0, done.files);
    switch (done.end) {
    case SheetExport::Done:
        return saySaved(tr("PDF files saved in %1: %2").arg(folder, QString::number(saved.size())),
                        *job);
    case SheetExport::Cancelled:
        return m_messages->say(saved.isEmpty() ? tr("Cancelled. No PDF file was saved.")
                                               : tr("Cancelled. PDF files saved in %1: %2")
                                                     .arg(folder, saved.join(QLatin1String(", "))));
    case SheetExport::Failed:
        return m_messages->complainOfWriting(
            job->path(done.files), done.trouble + QLatin1Char('\n') +
                                       lines(tr("Already saved:"), saved) +
                                       lines(tr("Not saved:"), job->files.mid(done.files)));
    }
}

} // namespace workbench
