// The main window and its project: open, save as, closing.

#include "chooseFileToSave.h"
#include "copyProject.h"
#include "GroupList.h"
#include "MainWindow.h"
#include "OutputDialog.h"
#include "PlatformLog.h"
#include "projectFiles.h"
#include "RecordsPane.h"
#include "ScriptPane.h"
#include "SlowWork.h"
#include "TextOutputDialog.h"
#include "waitForStore.h"
#include "WindowActions.h"
#include "WindowSettings.h"

#include <AnimatorView.h>
#include <SheetPreview.h>
#include <VKD_H_ZOBDoc.h>

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
    if (isFirst) {
        m_isProjectToShow = true;
        update();
    } else {
        showProject();
    }
    return true;
}

/// Reads the model of the project at this index; false if the user cancelled.
bool MainWindow::showModel(int index)
{
    SlowWork work(this, tr("The model is being read."), 0);
    PlatformLog::take(); // showProject() looks for what is written from now on
    return m_view->setProject(index, [&work](int) { return work.goOn(0); });
}

void MainWindow::setDocument(std::unique_ptr<VKD_H_ZOBDoc> document)
{
    m_output.reset();
    m_textOutput.reset();
    m_document = std::move(document);
    m_actions->enable(bool(m_document), false);
    setWindowModified(false);
    setTitle();
}

void MainWindow::showFirstProject()
{
    if (showModel(index()))
        return showProject();
    setDocument(nullptr);
    showContents();
    say(tr("Cancelled."));
}

/// All but the model itself. The script comes last, since its page takes longest.
void MainWindow::showProject()
{
    const WaitCursor cursor;
    m_view->slotViewControl(AnimatorStandardView, 0.0);
    m_groups->setProject(index());
    showRecords();
    showNoScript();
    m_sheet->setProject(index(), QFileInfo(m_document->path()).completeBaseName());
    WindowSettings settings;
    settings.addRecentFile(m_document->path());
    m_actions->setRecentFiles(settings.recentFiles());
    m_actions->enable(true, m_view->isPicking());
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

void MainWindow::saveAs()
{
    const QString path = chooseFileToSave(this, tr("Save Project As"), m_document->path(),
                                          tr("Projects (*.zob)"), QStringLiteral("zob"), QString());
    if (path.isEmpty())
        return;
    if (isSameFile(path, m_document->path())) {
        storeOutput();
        if (m_textOutput)
            storeTextOutput();
        return;
    }
    if (!output() || !succeeds(copyProject(this, *m_document, path), path,
                               tr("The project cannot be saved in the file %1.")))
        return;
    takeOver(path);
}

/// Goes on with the copy of the project, and leaves what is chosen as it is on the screen.
void MainWindow::takeOver(const QString& path)
{
    const OutputPresent plots = m_output->present();
    const auto text = m_textOutput ? std::make_optional(m_textOutput->state()) : std::nullopt;
    const bool wasTextChanged = text && m_textOutput->isChanged();
    if (!openProject(path))
        return;
    remakeOutput(plots);
    m_script->setOtherScript(m_output->script(m_script->english()));
    if (text)
        reopenTextOutput(*text);
    const bool arePlotsStored = !plots.isChanged || storeOutput();
    if (arePlotsStored && (!wasTextChanged || storeTextOutput()))
        say(tr("The project is saved as %1.").arg(QFileInfo(path).fileName()));
}

bool MainWindow::mayLeaveProject()
{
    if (!mayLeaveTextOutput())
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
