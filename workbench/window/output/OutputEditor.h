#pragma once

#include "project/output/OutputList.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace workbench {

struct EditedOutputs;
class OpenProject;
class OutputDialog;
class OutputDock;
struct OutputPresent;
class ProjectAccess;
class WindowMessages;

/// Edits the graphical outputs of the open project: owns the dialog for the current output in the
/// dock, and reads and stores all outputs. The dialog creates the script, so it exists even while
/// the dock is closed.
class OutputEditor : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the editor.
    OutputEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                 OutputDock* dock);
    ~OutputEditor() override;

    /// Returns whether the dialog exists.
    bool exists() const { return bool(m_dialog); }
    /// Returns the dialog, and creates it with the state of the project if it does not exist. If
    /// the project cannot be read, shows an error message and returns null.
    OutputDialog* dialog();
    /// Sets a function that applies the name that the user is typing, if any. It returns false if
    /// the name is not allowed.
    void setFinishName(const std::function<bool()>& finishName) { m_finishName = finishName; }
    /// Applies the input that the user is typing. If it is not allowed, shows the field and the
    /// reason, and returns false.
    bool finishEditing();
    /// Returns the state for recreate(), or an empty optional if the dialog does not exist.
    std::optional<EditedOutputs> present();
    /// Returns whether the outputs have unsaved changes.
    bool isChanged() const;
    /// Stores all outputs in the project. Returns whether this succeeded. If another program has
    /// stored outputs in the meantime, those without unsaved changes are preserved.
    bool store();
    /// Asks whether to store the changes to all outputs. Returns false if the user cancels or
    /// storing fails.
    bool mayLeave();

    /// Opens the dock, if the project can be read, and gives it the focus.
    void edit();
    /// Shows in the title of the dock whether there are unsaved changes. Returns whether there are
    /// any.
    bool markChanges();
    /// Creates a new dialog with the state and the outputs of a previous dialog.
    void recreate(const EditedOutputs& before);
    /// Continues with a project that has been reloaded. Unsaved changes are preserved.
    void continueAfterReload(const EditedOutputs& before);
    /// Destroys the dialog without asking.
    void close();
    /// Must be called after another program has stored a newer state. Reads the outputs again if
    /// they are unchanged.
    void followOthers();

    /// Returns the outputs without the changes in the dialog.
    const OutputList& outputs() const { return m_outputs; }
    /// Returns whether an output has unsaved changes. For the current output, the result is as of
    /// the last call to isChanged() without an argument, because comparing the plots takes time.
    bool isChanged(int output) const;
    /// Changes the names or the order of the outputs. The same output must remain current.
    void editList(const std::function<void(OutputList*)>& change);
    /// Makes another output current, and shows it in a new dialog. The changes in the previous
    /// dialog are preserved in the list. If the project cannot be read, shows an error message,
    /// changes nothing and returns false, as it does if finishEditing() fails.
    bool changeCurrent(const std::function<void(OutputList*)>& change);
    /// Calls `work` with a dialog for each output, until it returns false. Only the dialog of the
    /// current output is shown. Returns whether all calls have returned true. If the project cannot
    /// be read, shows an error message and returns false.
    bool forEachOutput(const std::function<bool(int output, OutputDialog*)>& work);

Q_SIGNALS:
    /// Emitted when the script has to be updated.
    void choiceChanged();
    /// Emitted when another output has become the current output.
    void outputChosen();
    /// Emitted when isChanged() may have changed.
    void modified();

private:
    bool load();
    bool read(OutputList* outputs) const;
    VkdStatus put(OutputList* outputs) const;
    EditedOutputs followed(EditedOutputs outputs) const;
    void compareWithProject();
    void create(const OutputState& state);
    void showPresent(const OutputPresent& present);
    void closeLater();
    void reload();
    void renew();
    void discard();
    bool mayClose();
    void leave();

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    OutputDock* m_dock;
    OutputList m_outputs;
    bool m_areOutputsRead = false;
    mutable bool m_isDialogChanged = false; ///< as of the last call to isChanged()
    std::unique_ptr<OutputDialog> m_dialog;
    std::function<bool()> m_finishName = [] { return true; };
};

} // namespace workbench
