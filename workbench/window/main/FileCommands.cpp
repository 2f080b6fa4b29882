#include "window/main/FileCommands.h"

#include "project/OpenProject.h"
#include "window/design/DesignEditor.h"
#include "window/files/chooseFileToSave.h"
#include "window/files/copyProject.h"
#include "window/files/projectFiles.h"
#include "window/files/SlowWork.h"
#include "window/files/waitForStore.h"
#include "window/main/WindowActions.h"
#include "window/output/EditedOutputs.h"
#include "window/output/OutputEditor.h"
#include "window/output/OutputScript.h"
#include "window/support/WindowMessages.h"
#include "window/support/WindowSettings.h"
#include "window/textoutput/TextOutputDialog.h"
#include "window/textoutput/TextOutputEditor.h"

#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>
#include <ZobSnapshot.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

#include <utility>

namespace workbench {

FileCommands::FileCommands(const ProjectParts& parts, const MakeProject& makeProject,
                           WindowActions* actions)
    : m_parts(parts)
    , m_newProject(parts.project, parts.messages, makeProject)
    , m_changes(parts.design, parts.output, parts.textOutput)
    , m_actions(actions)
{
    connectActions(*actions);
    m_actions->setRecentFiles(WindowSettings().recentFiles());
}

void FileCommands::connectActions(const WindowActions& actions)
{
    const auto on = [this](const QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    for (const QAction* sample : actions.newFromSample)
        on(sample, [this, sample] { newProject(sample->data().toString()); });
    on(actions.newFromFile, &FileCommands::newFromFile);
    on(actions.open, &FileCommands::chooseProject);
    on(actions.reload, &FileCommands::reload);
    on(actions.save, &FileCommands::save);
    on(actions.saveAs, &FileCommands::saveAs);
    on(actions.close, &FileCommands::close);
    connect(actions.recentMenu, &QMenu::triggered, this, [this](const QAction* file) {
        leaveFor(file->data().toString()); // a copy, because the call rebuilds the menu
    });
}

void FileCommands::newFromFile()
{
    const QString model = m_newProject.chooseModel();
    if (!model.isEmpty())
        newProject(model);
}

void FileCommands::newProject(const QString& model)
{
    if (!mayLeave())
        return;
    const QString path = m_newProject.create(model);
    if (!path.isEmpty())
        open(path);
}

void FileCommands::chooseProject()
{
    const QString path = QFileDialog::getOpenFileName(
        m_parts.messages->window(), tr("Open Project"), m_parts.project->folder(),
        tr("Projects and models (*.zob *.json)") + QLatin1String(";;") + tr("All files (*)"));
    if (!path.isEmpty())
        openFile(path);
}

void FileCommands::leaveFor(const QString& path)
{
    if (mayLeave())
        open(path);
}

void FileCommands::openFile(const QString& path)
{
    if (isModelFile(path))
        newProject(path);
    else
        leaveFor(path);
}

bool FileCommands::open(const QString& path)
{
    if (!openDocument(path, Camera::Standard))
        return false;
    if (!m_isProjectToShow)
        m_parts.design->showProject();
    return true;
}

bool FileCommands::openDocument(const QString& path, Camera camera)
{
    QWidget* window = m_parts.messages->window();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    std::unique_ptr<VKD_H_ZOBDoc> document;
    cd_error_t status = waitForStore(window, absolute, [window, &document, &absolute] {
        SlowWork work(window, tr("The project is being opened."), 0);
        VkdStatus result;
        document = VKD_H_ZOBDoc::open(absolute, &result, [&work](int) { return work.goOn(0); });
        return cd_error_t(result.code);
    });
    // Opening the first project must not delay painting the window.
    const bool isFirst = !m_parts.project->isOpen() && window->isVisible();
    VkdStatus modelStatus;
    if (status == VKD_ZOB_OK && !isFirst)
        modelStatus = showModel(document->handle());
    if (modelStatus.code == VKD_ZOB_CANCELLED)
        status = VKD_ZOB_CANCELLED;
    if (!m_parts.messages->succeeds(status, absolute, tr("The file %1 cannot be opened."))) {
        m_actions->setRecentFiles(WindowSettings().recentFiles()); // the file may have been deleted
        return false;
    }
    m_parts.messages->say(tr("%1 is open.").arg(QFileInfo(path).fileName()));
    const auto previous = setDocument(std::move(document)); // stays open until this function ends
    m_isProjectToShow = isFirst; // an earlier project may still be waiting for the paint event
    if (isFirst) {
        window->update();
    } else {
        if (camera == Camera::Standard)
            m_parts.view->slotViewControl(AnimatorStandardView, 0.0);
        showProject(modelStatus);
    }
    return true;
}

std::unique_ptr<VKD_H_ZOBDoc> FileCommands::setDocument(std::unique_ptr<VKD_H_ZOBDoc> document)
{
    m_parts.design->close();
    m_parts.output->close();
    m_parts.textOutput->close();
    auto previous = m_parts.project->setDocument(std::move(document));
    Q_EMIT replaced();
    return previous;
}

/// Loads the model of the project. The status is VKD_ZOB_CANCELLED if the user has cancelled.
VkdStatus FileCommands::showModel(ZobHandle project)
{
    SlowWork work(m_parts.messages->window(), tr("The model is being read."), 0);
    return m_parts.view->setProject(project, [&work](int) { return work.goOn(0); });
}

/// Shows all data except the model from one snapshot. Returns whether everything was read.
bool FileCommands::showContents()
{
    const ZobSnapshot snapshot(m_parts.project->handle()); // must end before a message is shown
    return m_parts.showContents() && snapshot.status().isOk();
}

void FileCommands::showProject(const VkdStatus& modelStatus)
{
    const QString path = m_parts.project->path();
    WindowSettings settings;
    settings.addRecentFile(path);
    m_actions->setRecentFiles(settings.recentFiles());
    const bool areContentsRead = showContents();
    if (!modelStatus.isOk() || !areContentsRead)
        m_parts.messages->complain(tr("The file %1 could not be read completely.\nSome data may be "
                                      "missing from the display.")
                                       .arg(QDir::toNativeSeparators(path)));
}

void FileCommands::showFirstProject()
{
    if (!m_parts.project->isOpen())
        return; // closed in the meantime
    const VkdStatus status = showModel(m_parts.project->handle());
    if (status.code != VKD_ZOB_CANCELLED) {
        m_parts.view->slotViewControl(AnimatorStandardView, 0.0);
        showProject(status);
        return m_parts.design->showProject();
    }
    setDocument(nullptr);
    m_parts.messages->say(tr("Cancelled."));
}

void FileCommands::painted()
{
    if (const QString path = std::exchange(m_pathToOpen, QString()); !path.isEmpty())
        QTimer::singleShot(0, this, [this, path] {
            if (!open(path))
                Q_EMIT replaced();
        });
    if (std::exchange(m_isProjectToShow, false))
        QTimer::singleShot(0, this, &FileCommands::showFirstProject);
}

void FileCommands::close()
{
    if (!mayLeave())
        return;
    const auto previous = setDocument(nullptr);
    m_parts.view->setProject(ZobHandle());
    m_parts.messages->say(tr("%1 is closed.").arg(QFileInfo(previous->path()).fileName()));
}

/// Unsaved changes are preserved. If another program has changed the same part, Apply and OK ask.
void FileCommands::reload()
{
    if (!m_parts.design->finishEditing())
        return;
    const auto rows = m_parts.design->state();
    const auto plots = m_parts.output->present();
    const bool isTextOpen = m_parts.textOutput->isOpen();
    const auto text = m_parts.textOutput->isChanged() ? m_parts.textOutput->state() : std::nullopt;
    if (!openDocument(m_parts.project->path(), Camera::Keep))
        return;
    m_parts.design->showAgain(rows);
    if (plots)
        m_parts.output->continueAfterReload(*plots);
    if (text)
        m_parts.textOutput->reopen(*text);
    else if (isTextOpen)
        m_parts.textOutput->show();
    m_parts.messages->say(tr("%1 is reloaded.").arg(QFileInfo(m_parts.project->path()).fileName()));
}

void FileCommands::save()
{
    if (!m_changes.exist())
        m_parts.messages->say(tr("There are no unsaved changes."));
    m_changes.store();
}

bool FileCommands::saveAs()
{
    if (!m_changes.finishEditing())
        return false;
    OpenProject* project = m_parts.project;
    QWidget* window = m_parts.messages->window();
    const QString path = chooseFileToSave(window, tr("Save Project As"), project->path(),
                                          tr("Projects (*.zob)"), QStringLiteral("zob"), QString());
    if (path.isEmpty())
        return false;
    if (project->check() == ProjectWatch::File::Present && isSameFile(path, project->path()))
        return m_changes.store();
    if (!m_parts.output->dialog() ||
        !m_parts.messages->succeeds(copyProject(window, *project->document(), path), path,
                                    tr("The project cannot be saved in the file %1.")))
        return false;
    return takeOver(path);
}

/// Continues with the copy of the project and preserves the rows and the selections in open
/// dialogs.
bool FileCommands::takeOver(const QString& path)
{
    const auto rows = m_parts.design->state();
    const auto plots = m_parts.output->present();
    const auto text = m_parts.textOutput->state();
    const bool wasTextChanged = m_parts.textOutput->isChanged();
    if (!openDocument(path, Camera::Keep))
        return false;
    m_parts.design->showAgain(rows);
    m_parts.output->recreate(*plots);
    m_parts.script->showOther();
    if (text)
        m_parts.textOutput->reopen(*text);
    if (m_parts.design->store() && (!plots->isChanged || m_parts.output->store()) &&
        (!wasTextChanged || m_parts.textOutput->store()))
        m_parts.messages->say(
            tr("The project has been saved as %1.").arg(QFileInfo(path).fileName()));
    return true;
}

bool FileCommands::mayLeaveMissingFile()
{
    return m_parts.project->check() != ProjectWatch::File::Missing || !m_parts.project->isOpen() ||
           m_parts.messages->mayLeave(tr("The project file was deleted or moved.\nDo you want to "
                                         "save the open project under another name?"),
                                      [this] { return saveAs(); });
}

bool FileCommands::mayLeave()
{
    return mayLeaveMissingFile() && m_changes.mayLeave();
}

} // namespace workbench
