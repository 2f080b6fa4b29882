#include "window/output/OutputEditor.h"

#include "window/files/ProjectAccess.h"
#include "window/files/SlowWork.h"
#include "window/output/EditedOutputs.h"
#include "window/output/OutputDock.h"
#include "window/support/WindowMessages.h"

#include <VKD_QT_InputField.h>

#include <QAction>

namespace workbench {

OutputEditor::OutputEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                           OutputDock* dock)
    : m_project(project)
    , m_access(access)
    , m_messages(messages)
    , m_dock(dock)
{
    m_dock->setMayClose([this] { return mayClose(); });
    connect(m_dock, &OutputDock::closed, this, &OutputEditor::leave);
    connect(m_dock->toggleViewAction(), &QAction::triggered, this, [this](bool isShown) {
        if (isShown)
            edit();
    });
}

/// Destroys the dialog before the project that it uses.
OutputEditor::~OutputEditor()
{
    close();
}

OutputDialog* OutputEditor::dialog()
{
    if (!m_dialog && m_access->canRead() && !m_dialog && load()) // canRead() may have created it
        create(m_outputs.current().state);
    return m_dialog.get();
}

bool OutputEditor::finishEditing()
{
    if (!m_dialog)
        return true;
    if (!m_finishName())
        return false;
    if (!vkd_qt_leadToRefusedField(m_dialog.get()))
        return true;
    edit(); // the dock may be closed
    vkd_qt_leadToRefusedField(m_dialog.get());
    return false;
}

std::optional<EditedOutputs> OutputEditor::present()
{
    if (!m_dialog)
        return std::nullopt;
    m_finishName();
    return EditedOutputs{m_dialog->present(), m_outputs, isChanged()};
}

bool OutputEditor::isChanged() const
{
    m_isDialogChanged = m_dialog && m_dialog->hasUnsavedInput();
    return m_isDialogChanged || m_outputs.isChanged();
}

void OutputEditor::create(const OutputState& state)
{
    const WaitCursor cursor;
    m_dialog = std::make_unique<OutputDialog>(m_project->document(), state, m_dock);
    m_dock->setDialog(m_dialog.get());
    connect(m_dialog.get(), &OutputDialog::choiceChanged, this, &OutputEditor::choiceChanged);
    connect(m_dialog.get(), &QDialog::accepted, this, &OutputEditor::store);
    connect(m_dialog.get(), &QDialog::rejected, this, &OutputEditor::discard);
}

void OutputEditor::recreate(const EditedOutputs& before)
{
    m_outputs = before.outputs;
    m_areOutputsRead = true;
    create(before.dialog.state);
    showPresent(before.dialog);
}

/// If the page knows its saved state, the list contains this state, and only the page contains the
/// changes. The output is unchanged as soon as the user undoes them.
void OutputEditor::showPresent(const OutputPresent& present)
{
    m_dialog->setPresent(present);
    if (present.isChanged && !present.unchanged.isEmpty())
        m_outputs.revert();
}

void OutputEditor::close()
{
    m_dock->setDialog(nullptr);
    m_dialog.reset();
    m_outputs = OutputList();
    m_areOutputsRead = false;
}

/// Destroys the dialog later, because one of its buttons may have called this function. Its plots
/// are removed first: with thousands of load cases they take hundreds of megabytes, and the next
/// dialog may be created before this one is destroyed.
void OutputEditor::closeLater()
{
    m_dialog->disconnect(this);
    m_dock->setDialog(nullptr);
    m_dialog->removePlots();
    m_dialog.release()->deleteLater();
}

void OutputEditor::edit()
{
    const bool isFirst = !m_dialog;
    if (!dialog())
        return m_dock->hide();
    if (isFirst)
        Q_EMIT choiceChanged();
    m_dock->show();
    m_dock->raise();
    m_dock->activateWindow();
    m_dialog->enter();
}

bool OutputEditor::markChanges()
{
    const bool areChanges = isChanged();
    m_dock->setWindowModified(areChanges);
    if (m_dialog)
        m_dialog->enableButtons(areChanges, m_isDialogChanged);
    return areChanges;
}

bool OutputEditor::store()
{
    if (!dialog() || !finishEditing())
        return false;
    OutputList stored = m_outputs;
    const bool isDialogStored = m_dialog->isChanged();
    if (isDialogStored)
        stored.setState(m_dialog->state(), true);
    if (!m_access->storePart(
            ProjectPart::Output, [this, &stored] { return put(&stored).code; },
            tr("The choice of plots cannot be stored in the file %1."), [this] { reload(); }))
        return false;
    const bool isOther = !(stored.current().state == m_outputs.current().state);
    m_outputs = stored;
    m_outputs.setStored();
    if (isOther && !isDialogStored)
        renew(); // another program has changed the current output
    else
        m_dialog->setUnchanged();
    Q_EMIT modified();
    m_messages->say(tr("The choice of plots has been stored in the project file."));
    return true;
}

/// Replaces the dialog with a new one that shows the state of the project. The new dialog is
/// created when the script is updated.
void OutputEditor::reload()
{
    m_areOutputsRead = false;
    renew();
}

/// Discards the changes to the current output, and shows the state that is stored in the project.
/// Changes to other outputs are preserved.
void OutputEditor::discard()
{
    OutputList project;
    if (!read(&project))
        return;
    m_outputs.follow(project, OutputList::Removed::Drop);
    m_outputs.revert();
    m_areOutputsRead = m_outputs.isChanged();
    renew();
    if (!m_dialog)
        return;
    m_messages->say(m_outputs.current().savedIndex >= 0
                        ? tr("The choice of plots from the project has been restored.")
                        : tr("The output \"%1\" is not in the project. Its original plots are "
                             "selected again.")
                              .arg(m_outputs.name(m_outputs.currentIndex())));
}

void OutputEditor::renew()
{
    OutputPresent present = m_dialog->present();
    present.isChanged = false;
    present.refused = RefusedTexts();
    closeLater();
    Q_EMIT choiceChanged();
    if (m_dialog)
        m_dialog->setPresent(present);
}

/// Discards the changes that the user did not want to store when the dock was closed.
void OutputEditor::leave()
{
    if (m_dialog && m_dialog->hasUnsavedInput())
        discard();
}

/// Asks only about the changes in the dialog, because the list with all outputs stays visible.
bool OutputEditor::mayClose()
{
    if (!m_dialog || !m_dialog->hasUnsavedInput())
        return true;
    const QString question =
        m_outputs.current().savedIndex >= 0
            ? tr("The choice of plots has been changed, but not yet stored in the project.\n"
                 "Do you want to store it?")
            : tr("The output \"%1\" has not yet been stored in the project.\n"
                 "Do you want to store it? Discard selects its original plots again.")
                  .arg(m_outputs.name(m_outputs.currentIndex()));
    return m_messages->mayLeave(question, [this] { return store(); });
}

bool OutputEditor::mayLeave()
{
    if (m_dialog && !m_finishName())
        return false;
    if (!isChanged())
        return true;
    const QStringList unsaved = m_outputs.unsavedNames();
    const QString question =
        unsaved.isEmpty()
            ? tr("The choice of plots has been changed, but not yet stored in the project.\n"
                 "Do you want to store it?")
            : tr("These outputs have not yet been stored in the project: %1\n"
                 "Do you want to store all outputs?")
                  .arg(unsaved.join(QLatin1String(", ")));
    return m_messages->mayLeave(question, [this] { return store(); });
}

void OutputEditor::followOthers()
{
    if (!m_dialog || !m_project->isOutdated(ProjectPart::Output))
        return;
    m_finishName();
    if (isChanged())
        compareWithProject();
    else
        reload();
}

} // namespace workbench
