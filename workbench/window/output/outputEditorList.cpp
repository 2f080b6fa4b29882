// The part of OutputEditor that handles the list of outputs.

#include "project/OpenProject.h"
#include "window/files/ProjectAccess.h"
#include "window/output/CameraRollback.h"
#include "window/output/EditedOutputs.h"
#include "window/output/OutputEditor.h"
#include "window/support/WindowMessages.h"

#include <QApplication>
#include <QMainWindow>

namespace workbench {

/// Reads the outputs of the project, unless they have been read or the list has unsaved changes.
/// The current output is preserved if the project still contains it. If the outputs cannot be read,
/// shows an error message and returns false.
bool OutputEditor::load()
{
    if (m_areOutputsRead)
        return true;
    OutputList outputs;
    const auto read = [this, &outputs] {
        VkdStatus status{m_project->look(ProjectPart::Output), QString()};
        if (status.isOk())
            outputs = OutputList::read(m_project->handle(), &status);
        return cd_error_t(status.code);
    };
    if (!m_access->read(read))
        return false;
    outputs.continueFrom(m_outputs);
    m_outputs = outputs;
    m_areOutputsRead = true;
    return true;
}

/// Reads the outputs of the project. If this fails, shows an error message and returns false.
bool OutputEditor::read(OutputList* outputs) const
{
    return m_access->read([this, outputs] {
        VkdStatus status;
        *outputs = OutputList::read(m_project->handle(), &status);
        return cd_error_t(status.code);
    });
}

/// Writes the outputs. Outputs that another program has stored are preserved, unless the user has
/// changed them, too.
VkdStatus OutputEditor::put(OutputList* outputs) const
{
    VkdStatus status;
    const OutputList project = OutputList::read(m_project->handle(), &status);
    if (!status.isOk())
        return status;
    outputs->follow(project, OutputList::Removed::Keep);
    return outputs->put(m_project->handle());
}

void OutputEditor::continueAfterReload(const EditedOutputs& before)
{
    if (before.isChanged)
        return recreate(followed(before));
    m_outputs = before.outputs;
    if (dialog())
        m_dialog->setPresent(before.dialog);
}

/// Adds the changes that other programs have stored to the outputs. If they cannot be read, returns
/// the outputs unchanged; storing them will then show the error. If the current output was stored
/// with another state, the dialog compares its state with that one.
EditedOutputs OutputEditor::followed(EditedOutputs outputs) const
{
    OutputList& list = outputs.outputs;
    list.setUnchanged(outputs.dialog.unchanged);
    if (outputs.dialog.isChanged)
        list.setState(outputs.dialog.state, true);
    VkdStatus status;
    const OutputList project = OutputList::read(m_project->handle(), &status);
    if (status.isOk())
        list.follow(project, OutputList::Removed::Drop);
    outputs.dialog.state = list.current().state;
    outputs.dialog.unchanged = list.current().unchanged;
    if (outputs.dialog.unchanged.isEmpty() && list.current().savedIndex >= 0)
        outputs.dialog.unchanged = list.current().savedState.text();
    return outputs;
}

/// Does not change the outputs. An output whose changes are undone still differs from the newer
/// state in the project.
void OutputEditor::compareWithProject()
{
    const EditedOutputs newer = followed({m_dialog->present(), m_outputs, true});
    m_dialog->setUnchanged(newer.dialog.unchanged);
}

bool OutputEditor::isChanged(int output) const
{
    return m_outputs.isChanged(output) || (m_isDialogChanged && output == m_outputs.currentIndex());
}

void OutputEditor::editList(const std::function<void(OutputList*)>& change)
{
    if (!dialog())
        return;
    change(&m_outputs);
    Q_EMIT modified();
}

/// The state in the list is replaced only if the user has changed it, so that an output that has
/// only been shown is not marked as changed.
bool OutputEditor::changeCurrent(const std::function<void(OutputList*)>& change)
{
    if (!m_access->canRead() || !dialog() || !finishEditing())
        return false;
    OutputPresent present = m_dialog->present();
    if (present.isChanged)
        m_outputs.setState(present.state, true);
    m_outputs.setSteps(present.steps);
    m_outputs.setUnchanged(present.unchanged);
    const bool hasFocus = m_dialog->isAncestorOf(QApplication::focusWidget());
    const int count = m_outputs.size();
    change(&m_outputs);
    if (m_outputs.size() > count)
        present.plots.endSearch(); // the search belongs to the previous output
    present.state = m_outputs.current().state;
    present.isChanged = m_outputs.current().isStateChanged;
    present.unchanged = m_outputs.current().unchanged;
    present.steps = m_outputs.current().steps;
    closeLater();
    create(present.state);
    showPresent(present);
    if (hasFocus)
        m_dialog->enter();
    Q_EMIT outputChosen();
    return true;
}

bool OutputEditor::forEachOutput(const std::function<bool(int, OutputDialog*)>& work)
{
    bool goesOn = bool(dialog());
    for (int i = 0; goesOn && i < m_outputs.size(); ++i) {
        if (i == m_outputs.currentIndex()) {
            goesOn = work(i, m_dialog.get());
            continue;
        }
        if (!m_access->canRead())
            return false;
        const CameraRollback camera;
        OutputDialog hidden(m_project->document(), m_outputs.at(i).state, m_messages->window());
        goesOn = work(i, &hidden);
    }
    return goesOn;
}

} // namespace workbench
