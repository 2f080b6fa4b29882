// The main window and its project: open, save as, closing.

#include "cli/PlatformLog.h"
#include "project/ProjectWatch.h"
#include "sheet/SheetPreview.h"
#include "window/main/ChangeBar.h"
#include "window/main/GroupList.h"
#include "window/main/MainWindow.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDialog.h"
#include "window/output/ScriptPane.h"
#include "window/records/RecordsPane.h"
#include "window/support/chooseFileToSave.h"
#include "window/support/copyProject.h"
#include "window/support/projectFiles.h"
#include "window/support/SlowWork.h"
#include "window/support/waitForStore.h"
#include "window/support/WindowSettings.h"
#include "window/textoutput/TextOutputDialog.h"

#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>
#include <ZobSnapshot.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QTimer>

#include <optional>
#include <utility>

namespace workbench {

void MainWindow::chooseProject()
{
    if (!mayLeaveProject())
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Project"), folder(),
                                                      tr("Projects (*.zob)") + QLatin1String(";;") +
                                                          tr("All files (*)"));
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::openProject(const QString& path)
{
    return openDocument(path, false);
}

bool MainWindow::openDocument(const QString& path, bool keepsCamera)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    std::unique_ptr<VKD_H_ZOBDoc> document;
    cd_error_t status = waitForStore(this, absolute, [this, &document, &absolute] {
        SlowWork work(this, tr("The project is being opened."), 0);
        VkdStatus result;
        document = VKD_H_ZOBDoc::open(absolute, &result, [&work](int) { return work.goOn(0); });
        return cd_error_t(result.code);
    });
    const bool isFirst = !m_document && isVisible(); // which is not to hold up the window
    if (status == VKD_ZOB_OK && !isFirst && !showModel(document->index()))
        status = VKD_ZOB_CANCELLED;
    if (!succeeds(status, absolute, tr("The file %1 cannot be opened."))) {
        m_actions->setRecentFiles(WindowSettings().recentFiles()); // it may be gone
        return false;
    }
    say(tr("%1 is open.").arg(QFileInfo(path).fileName()));
    const auto before = std::move(m_document); // until nothing shows it any more
    setDocument(std::move(document));
    m_isProjectToShow = isFirst; // not also the one before, which may still wait for the painting
    if (isFirst) {
        update();
    } else {
        if (!keepsCamera)
            m_view->slotViewControl(AnimatorStandardView, 0.0);
        showProject();
    }
    return true;
}

/// What is chosen in an open dialog and not stored yet stays; its OK asks if others have changed
/// the same.
void MainWindow::reload()
{
    const auto plots = m_output ? std::make_optional(m_output->present()) : std::nullopt;
    const bool isTextOpen = bool(m_textOutput);
    const auto text = isTextOpen && m_textOutput->isChanged()
                          ? std::make_optional(m_textOutput->state())
                          : std::nullopt;
    if (!openDocument(m_document->path(), true))
        return;
    if (plots && plots->isChanged)
        remakeOutput(*plots);
    else if (plots && output())
        m_output->setPresent(*plots);
    if (text)
        reopenTextOutput(*text);
    else if (isTextOpen)
        showTextOutput();
    say(tr("%1 is reloaded.").arg(QFileInfo(m_document->path()).fileName()));
}

/// A modal dialog may be in the midst of work on what would change here; the window looks again
/// once it is active.
void MainWindow::showNews()
{
    if (!m_document || QApplication::activeModalWidget())
        return;
    enableActions();
    const bool isChanged = m_watch->changes() != m_followed;
    if (isChanged)
        followOthers();
    const bool isFileNews = m_watch->file() != m_shownFile;
    m_shownFile = m_watch->file();
    if (isChanged || (isFileNews && m_shownFile != ProjectWatch::File::Present))
        m_news->showNews(m_shownFile);
    else if (isFileNews)
        m_news->hide(); // it is back
}

/// Records and script follow at once, unless the choice of plots is in the user's hands. The rest
/// waits for Reload.
void MainWindow::followOthers()
{
    if (!ZobSnapshot(index()).status().isOk()) {
        PlatformLog::take();
        return;
    }
    m_followed = m_watch->changes();
    showRecords();
    if (!m_output || m_output->isVisible() || m_output->isChanged() ||
        !m_seenOutput.isOutdated(index()))
        return;
    m_output.release()->deleteLater(); // it may be busy with closing
    refreshScript();
}

/// Reads the model of the project at this index; false if the user cancelled.
bool MainWindow::showModel(int index)
{
    SlowWork work(this, tr("The model is being read."), 0);
    PlatformLog::take(); // showProject() looks for what is written from now on
    const VkdStatus read = m_view->setProject(index, [&work](int) { return work.goOn(0); });
    return read.code != VKD_ZOB_CANCELLED;
}

void MainWindow::setDocument(std::unique_ptr<VKD_H_ZOBDoc> document)
{
    m_output.reset();
    m_textOutput.reset();
    m_document = std::move(document);
    m_watch->setProject(index(), m_document ? m_document->path() : QString());
    m_followed = 0;
    m_shownFile = ProjectWatch::File::Present;
    m_news->hide();
    enableActions();
    setWindowModified(false);
    setTitle();
}

void MainWindow::showFirstProject()
{
    if (showModel(index())) {
        m_view->slotViewControl(AnimatorStandardView, 0.0);
        return showProject();
    }
    setDocument(nullptr);
    showContents();
    say(tr("Cancelled."));
}

/// All but the model itself. The script comes last, since its page takes longest.
void MainWindow::showProject()
{
    const WaitCursor cursor;
    m_groups->setProject(index());
    showRecords();
    showNoScript();
    m_sheet->setProject(index(), QFileInfo(m_document->path()).completeBaseName());
    WindowSettings settings;
    settings.addRecentFile(m_document->path());
    m_actions->setRecentFiles(settings.recentFiles());
    showContents();
    QTimer::singleShot(0, this, &MainWindow::refreshScript);
    if (!PlatformLog::take().isEmpty())
        complain(tr("Not all of the file %1 could be read.\nWhat is shown may lack something.")
                     .arg(QDir::toNativeSeparators(m_document->path())));
}

/// The pane is made with the first project: a window without one is not to wait for it.
void MainWindow::showRecords()
{
    if (!canRead())
        return; // what was read last stays
    if (!m_records) {
        m_records = new RecordsPane(m_recordDock);
        m_recordDock->setWidget(m_records);
        if (m_records->window() == this) // and not in a dock of its own
            setTabOrder(m_view, m_records);
    }
    m_records->setProject(index());
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    if (const QString path = std::exchange(m_pathToOpen, QString()); !path.isEmpty())
        QTimer::singleShot(0, this, [this, path] { openProject(path); });
    if (std::exchange(m_isProjectToShow, false))
        QTimer::singleShot(0, this, &MainWindow::showFirstProject);
}

bool MainWindow::saveAs()
{
    const QString path = chooseFileToSave(this, tr("Save Project As"), m_document->path(),
                                          tr("Projects (*.zob)"), QStringLiteral("zob"), QString());
    if (path.isEmpty())
        return false;
    m_watch->look();
    if (m_watch->file() == ProjectWatch::File::Present && isSameFile(path, m_document->path()))
        return storeOutput() && (!m_textOutput || storeTextOutput());
    if (!output() || !succeeds(copyProject(this, *m_document, path), path,
                               tr("The project cannot be saved in the file %1.")))
        return false;
    return takeOver(path);
}

/// Goes on with the copy of the project, and leaves what is chosen as it is on the screen.
bool MainWindow::takeOver(const QString& path)
{
    const OutputPresent plots = m_output->present();
    const auto text = m_textOutput ? std::make_optional(m_textOutput->state()) : std::nullopt;
    const bool wasTextChanged = text && m_textOutput->isChanged();
    if (!openDocument(path, true))
        return false;
    remakeOutput(plots);
    m_script->setOtherScript(m_output->script(m_script->english()));
    if (text)
        reopenTextOutput(*text);
    const bool arePlotsStored = !plots.isChanged || storeOutput();
    if (arePlotsStored && (!wasTextChanged || storeTextOutput()))
        say(tr("The project is saved as %1.").arg(QFileInfo(path).fileName()));
    return true;
}

bool MainWindow::mayLeaveMissingFile()
{
    m_watch->look();
    return !m_document || m_watch->file() != ProjectWatch::File::Missing ||
           mayLeave(tr("The project file was deleted or moved.\nIs the open project to be saved "
                       "under another name?"),
                    [this] { return saveAs(); });
}

bool MainWindow::mayLeaveProject()
{
    if (!mayLeaveMissingFile() || !mayLeaveTextOutput())
        return false;
    return !m_output || !m_output->isChanged() ||
           mayLeave(tr("The choice of plots is changed and not yet in the project.\nIs it to be "
                       "stored?"),
                    [this] { return storeOutput(); });
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_design) {
        say(tr("Finish picking groups first, with Done or Cancel."));
        return event->ignore();
    }
    if (!mayLeaveProject())
        return event->ignore();
    m_output.reset();
    m_textOutput.reset();
    saveWindowState();
    QMainWindow::closeEvent(event);
}

} // namespace workbench
