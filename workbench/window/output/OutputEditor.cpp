#include "window/output/OutputEditor.h"

#include "window/output/OutputDialog.h"
#include "window/support/ProjectAccess.h"
#include "window/support/SlowWork.h"
#include "window/support/WindowMessages.h"
#include "window/support/withinScreen.h"

#include <QMainWindow>

namespace workbench {

OutputEditor::OutputEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                           const QList<QAction*>& actions)
    : m_project(project)
    , m_access(access)
    , m_messages(messages)
    , m_actions(actions)
{
}

OutputEditor::~OutputEditor() = default;

OutputDialog* OutputEditor::dialog()
{
    if (!m_dialog && m_access->canRead() && !m_dialog) { // canRead() may have created it
        m_project->look(ProjectPart::Output);
        create(OutputState::read(m_project->handle()));
    }
    return m_dialog.get();
}

std::optional<OutputPresent> OutputEditor::present() const
{
    return m_dialog ? std::make_optional(m_dialog->present()) : std::nullopt;
}

bool OutputEditor::isChanged() const
{
    return m_dialog && m_dialog->isChanged();
}

void OutputEditor::create(const OutputState& state)
{
    const WaitCursor cursor;
    m_dialog = std::make_unique<OutputDialog>(m_project->document(), state, m_messages->window());
    m_dialog->addActions(m_actions);
    connect(m_dialog.get(), &OutputDialog::choiceChanged, this, &OutputEditor::choiceChanged);
    connect(m_dialog.get(), &QDialog::accepted, this, [this] {
        if (!store())
            Q_EMIT refused();
    });
    connect(m_dialog.get(), &QDialog::rejected, this, [this] {
        closeLater();
        m_messages->say(tr("The choice of plots is again that of the project."));
        Q_EMIT choiceChanged();
    });
}

void OutputEditor::recreate(const OutputPresent& before)
{
    create(before.state);
    m_dialog->setPresent(before);
}

void OutputEditor::close()
{
    m_dialog.reset();
}

/// Destroys the dialog later, because it may be closing at the moment. Its plots are removed first:
/// with thousands of load cases they take hundreds of megabytes, and the next dialog may be created
/// before this one is destroyed.
void OutputEditor::closeLater()
{
    m_dialog->disconnect(this);
    m_dialog->removePlots();
    m_dialog.release()->deleteLater();
}

void OutputEditor::show(const QPoint& place)
{
    const bool isFirst = !m_dialog;
    if (!dialog())
        return;
    if (isFirst)
        Q_EMIT choiceChanged();
    if (!m_dialog->testAttribute(Qt::WA_Moved))
        moveWithinScreen(m_dialog.get(), place);
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}

bool OutputEditor::store()
{
    if (!dialog())
        return false;
    const OutputState state = m_dialog->state();
    const auto put = [this, &state] { return state.put(m_project->handle()).code; };
    if (!m_access->storePart(ProjectPart::Output, put,
                             tr("The choice of plots cannot be stored in the file %1."),
                             [this] { reload(); }))
        return false;
    m_dialog->setUnchanged();
    Q_EMIT modified();
    m_messages->say(tr("The choice of plots is in the project file."));
    return true;
}

void OutputEditor::reload()
{
    OutputPresent present = m_dialog->present();
    present.isChanged = false;
    closeLater();
    if (dialog())
        m_dialog->setPresent(present);
    Q_EMIT choiceChanged();
}

bool OutputEditor::mayLeave()
{
    return !isChanged() ||
           m_messages->mayLeave(tr("The choice of plots is changed and not yet in the project.\n"
                                   "Is it to be stored?"),
                                [this] { return store(); });
}

bool OutputEditor::followOthers()
{
    if (!m_dialog || m_dialog->isVisible() || m_dialog->isChanged() ||
        !m_project->isOutdated(ProjectPart::Output))
        return false;
    closeLater();
    return true;
}

} // namespace workbench
