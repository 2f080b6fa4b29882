#pragma once

#include <QObject>

#include <memory>
#include <optional>

namespace workbench {

class OpenProject;
class OutputDialog;
class OutputDock;
struct OutputPresent;
struct OutputState;
class ProjectAccess;
class WindowMessages;

/// Edits the graphical output of the open project: owns the dialog in the dock, and reads and
/// stores its state. The dialog also exists while the dock is closed, because it creates the
/// script.
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
    /// Returns the state for recreate(), or an empty optional if the dialog does not exist.
    std::optional<OutputPresent> present() const;
    /// Returns whether the dialog contains changes that are not stored.
    bool isChanged() const;
    /// Stores the state of the dialog in the project. Returns whether it is stored.
    bool store();
    /// Asks whether to store changes. Returns false if the user cancels or storing fails.
    bool mayLeave();

    /// Opens the dock, if the project can be read, and gives it the focus.
    void edit();
    /// Marks unsaved changes in the title of the dock. Returns whether there are any.
    bool markChanges();
    /// Creates a new dialog with the state of a previous dialog.
    void recreate(const OutputPresent& before);
    /// Destroys the dialog without asking.
    void close();
    /// Reads the project again if another program has stored a newer state and the dialog is
    /// unchanged.
    void followOthers();

Q_SIGNALS:
    /// Emitted when the script has to be updated.
    void choiceChanged();
    /// Emitted when isChanged() may have changed.
    void modified();

private:
    void create(const OutputState& state);
    void closeLater();
    void reload();
    void discard();
    void leave();

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    OutputDock* m_dock;
    std::unique_ptr<OutputDialog> m_dialog;
};

} // namespace workbench
