#pragma once

#include <QObject>

#include <memory>
#include <optional>

class QAction;
class QPoint;

namespace workbench {

class OpenProject;
class OutputDialog;
struct OutputPresent;
struct OutputState;
class ProjectAccess;
class WindowMessages;

/// Edits the graphical output of the open project: owns its dialog, and reads and stores its state.
/// The dialog also exists while it is hidden, because it creates the script.
class OutputEditor : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the editor. The window's actions also work in
    /// the dialog.
    OutputEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                 const QList<QAction*>& actions);
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

    /// Shows the dialog. `place` is its screen position when it is first shown.
    void show(const QPoint& place);
    /// Creates a new dialog with the state of a previous dialog.
    void recreate(const OutputPresent& before);
    /// Destroys the dialog without asking.
    void close();
    /// Destroys the dialog if another program has stored a newer state, and the dialog is hidden
    /// and unchanged. Returns whether the dialog was destroyed.
    bool followOthers();

Q_SIGNALS:
    /// Emitted when the script has to be updated.
    void choiceChanged();
    /// Emitted when isChanged() may have changed.
    void modified();
    /// Emitted if OK could not store the selection. The dialog must be shown again.
    void refused();

private:
    void create(const OutputState& state);
    void closeLater();
    void reload();

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    QList<QAction*> m_actions;
    std::unique_ptr<OutputDialog> m_dialog;
};

} // namespace workbench
