#include "window/outputs/OutputCommands.h"

#include "project/OpenProject.h"
#include "window/files/projectFiles.h"
#include "window/files/SlowWork.h"
#include "window/files/waitForStore.h"
#include "window/output/OutputDialog.h"
#include "window/output/OutputEditor.h"
#include "window/output/OutputScript.h"
#include "window/output/PlotChoice.h"
#include "window/outputs/CopyOutputsDialog.h"
#include "window/outputs/OutputFiles.h"
#include "window/outputs/OutputsPane.h"
#include "window/support/WindowMessages.h"

#include <VKD_H_ZOBDoc.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>

#include <utility>

namespace workbench {

OutputCommands::OutputCommands(const OutputParts& parts)
    : m_parts(parts)
{
    const OutputsPane* pane = m_parts.pane;
    const auto on = [this](const QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    on(pane->undo, &OutputCommands::undo);
    on(pane->redo, &OutputCommands::redo);
    on(pane->newOutput, &OutputCommands::add);
    on(pane->duplicate, &OutputCommands::duplicate);
    on(pane->remove, &OutputCommands::remove);
    on(pane->moveUp, [this] { move(-1); });
    on(pane->moveDown, [this] { move(1); });
    on(pane->copyFrom, &OutputCommands::copyFromProject);
    const auto files = [this] {
        return OutputFiles(m_parts.project, m_parts.editor, m_parts.messages, m_parts.sheets);
    };
    on(pane->saveAll, [files] { files().saveScripts(); });
    on(pane->exportAll, [files] { files().exportSheets(); });
    m_editRefused.setSingleShot(true);
    connect(&m_editRefused, &QTimer::timeout, this, &OutputCommands::editRefusedName);
    m_focusPlots.setSingleShot(true);
    connect(&m_focusPlots, &QTimer::timeout, m_parts.editor, &OutputEditor::edit);
    m_parts.editor->setFinishName([this] { return finishName(); });
    connect(pane, &OutputsPane::chosen, this, &OutputCommands::choose);
    connect(pane, &OutputsPane::renamed, this, &OutputCommands::rename);
    connect(pane, &OutputsPane::namingEnded, this, &OutputCommands::endNaming);
    connect(m_parts.editor, &OutputEditor::modified, this, &OutputCommands::showList);
    connect(m_parts.script, &OutputScript::refreshed, this, &OutputCommands::showList);
    showList();
}

void OutputCommands::showList()
{
    QVector<OutputsPane::Row> rows;
    const OutputList& outputs = m_parts.editor->outputs();
    const bool isRead = m_parts.editor->exists();
    for (int i = 0; isRead && i < outputs.size(); ++i)
        rows.append({outputs.name(i), m_parts.editor->isChanged(i)});
    const bool wasFilled = m_parts.pane->isFilled();
    m_parts.pane->setOutputs(rows, isRead ? outputs.currentIndex() : -1);
    if (isRead)
        m_history.follow(outputs);
    if (isRead && !wasFilled)
        showRefusedName();
    showSteps();
    m_parts.pane->setAbsentPlots(isRead ? m_parts.editor->dialog()->absentPlots() : 0);
}

/// Reloading the project closes the editor for the name.
void OutputCommands::showRefusedName()
{
    if (m_refusedName.isNull())
        return;
    if (m_parts.editor->outputs().current().id == m_refusedId)
        m_editRefused.start(0);
    else
        m_refusedName = QString();
}

void OutputCommands::showSteps()
{
    const OutputsPane* pane = m_parts.pane;
    pane->undo->setText(m_history.undoText());
    pane->redo->setText(m_history.redoText());
    pane->undo->setEnabled(pane->isFilled() && m_history.canUndo());
    pane->redo->setEnabled(pane->isFilled() && m_history.canRedo());
}

/// Returns a function that makes the change and records it as an undo step.
OutputCommands::Change OutputCommands::recorded(OutputsStep step, const QString& name,
                                                const Change& change)
{
    return [this, step, name, change](OutputList* list) {
        const OutputList before = *list;
        change(list);
        m_history.record(step, name, before, *list);
    };
}

QString OutputCommands::currentName() const
{
    const OutputList& outputs = m_parts.editor->outputs();
    return outputs.name(outputs.currentIndex());
}

void OutputCommands::undo()
{
    if (m_history.canUndo()) // finishing the input of a name may have added or removed steps
        step(m_history.currentAfterUndo(), [this](OutputList* list) { m_history.undo(list); });
}

void OutputCommands::redo()
{
    if (m_history.canRedo())
        step(m_history.currentAfterRedo(), [this](OutputList* list) { m_history.redo(list); });
}

/// Carries out an undo or redo step and shows the output that has changed.
void OutputCommands::step(int currentAfter, const Change& change)
{
    if (currentAfter == m_parts.editor->outputs().current().id)
        m_parts.editor->editList(change);
    else
        m_parts.editor->changeCurrent(change);
    showList();
}

void OutputCommands::choose(int output)
{
    if (output >= 0 && output != m_parts.editor->outputs().currentIndex() &&
        !m_editRefused.isActive())
        m_parts.editor->changeCurrent([output](OutputList* list) { list->setCurrent(output); });
    showList();
}

/// A new output has the settings of the current output, so that the sheets of a project look alike.
void OutputCommands::add()
{
    const QString name = m_parts.editor->outputs().newName();
    const bool isAdded =
        m_parts.editor->changeCurrent(recorded(OutputsStep::Add, name, [&name](OutputList* list) {
            OutputState state = list->current().state;
            state.page = withoutPlots(state.page);
            list->add(name, state);
        }));
    if (isAdded)
        nameNew();
}

void OutputCommands::duplicate()
{
    const QString name = currentName();
    const auto change = [&name](OutputList* list) {
        list->add(list->unusedName(name), list->current().state);
    };
    if (m_parts.editor->changeCurrent(recorded(OutputsStep::Duplicate, name, change)))
        nameNew();
}

void OutputCommands::nameNew()
{
    m_parts.pane->editName();
    m_isNaming = true;
}

/// Gives the focus to the plots of a new output, so that they can be chosen at once. The list takes
/// the focus first, so this happens later, unless another command of the list follows.
void OutputCommands::endNaming(bool byKey)
{
    if (!m_editRefused.isActive())
        m_refusedName = QString();
    if (std::exchange(m_isNaming, false) && byKey)
        m_focusPlots.start(0);
    else
        m_focusPlots.stop();
}

void OutputCommands::rename(const QString& name)
{
    const QString fault = m_parts.editor->outputs().faultOfName(name);
    if (fault.isEmpty())
        return m_parts.editor->editList(recorded(
            OutputsStep::Rename, currentName(), [&name](OutputList* list) { list->rename(name); }));
    m_isNaming = false;
    showList();
    m_parts.messages->complain(fault);
    m_refusedName = name.isNull() ? QLatin1String("") : name;
    m_refusedId = m_parts.editor->outputs().current().id;
    m_editRefused.start(0); // later, because the list is about to close its editor
}

/// The refused name stays in the editor until the user corrects it or presses Escape.
void OutputCommands::editRefusedName()
{
    m_editRefused.stop();
    showList(); // the user may have clicked on another output
    m_parts.pane->editName(m_refusedName);
}

bool OutputCommands::finishName()
{
    m_parts.pane->finishEditing();
    if (!m_editRefused.isActive())
        return true;
    editRefusedName();
    return false;
}

/// Does not ask for confirmation, because the command can be undone, even after the list has been
/// stored.
void OutputCommands::remove()
{
    const QString name = currentName();
    if (!m_parts.editor->changeCurrent(
            recorded(OutputsStep::Delete, name, [](OutputList* list) { list->remove(); })))
        return;
    m_parts.pane->enter();
    m_parts.messages->say(tr("The output \"%1\" has been deleted. Undo restores it.").arg(name));
}

void OutputCommands::move(int distance)
{
    m_parts.editor->editList(
        recorded(OutputsStep::Move, currentName(),
                 [distance](OutputList* list) { list->move(list->currentIndex() + distance); }));
    m_parts.pane->enter();
}

void OutputCommands::copyFromProject()
{
    QWidget* window = m_parts.messages->window();
    const QString path = QFileDialog::getOpenFileName(
        window, tr("Copy from Project"), m_parts.project->folder(), tr("Projects (*.zob)"));
    if (path.isEmpty())
        return;
    if (isSameFile(path, m_parts.project->path()))
        return m_parts.messages->complain(
            tr("This project is already open. Use Duplicate to copy one of its outputs."));
    copyFrom(path);
}

/// Outputs without a name get the name of their project.
void OutputCommands::copyFrom(const QString& path)
{
    QWidget* window = m_parts.messages->window();
    OutputList theirs;
    VkdStatus status;
    status.code = waitForStore(window, path, [window, &path, &status, &theirs] {
        SlowWork work(window, tr("The project is being opened."), 0);
        const auto document =
            VKD_H_ZOBDoc::open(path, &status, [&work](int) { return work.goOn(0); });
        if (document)
            theirs = OutputList::read(document->handle(), &status);
        return cd_error_t(status.code);
    });
    if (!m_parts.messages->succeeds(status, path, tr("The file %1 cannot be opened.")))
        return;
    CopyOutputsDialog dialog(theirs.names(), window);
    if (theirs.size() > 1 && dialog.exec() != QDialog::Accepted)
        return;
    const QVector<int> chosen = dialog.checkedOutputs();
    const QString project = QFileInfo(path).completeBaseName();
    const auto add = [&](OutputList* list) {
        for (int output : chosen) {
            const QString name = theirs.at(output).name;
            list->add(list->unusedName(name.isEmpty() ? project : name), theirs.at(output).state);
        }
    };
    if (m_parts.editor->changeCurrent(recorded(OutputsStep::Copy, project, add)))
        m_parts.messages->say(tr("Outputs copied: %1").arg(chosen.size()));
}

} // namespace workbench
