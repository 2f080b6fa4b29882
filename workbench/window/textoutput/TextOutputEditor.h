#pragma once

#include <vkd_zob.h>

#include <QObject>

#include <memory>
#include <optional>

class QAction;

namespace workbench {

class OpenProject;
class ProjectAccess;
class TextOutputDialog;
struct TextOutputState;
class WindowMessages;

/// Edits the text output of the open project: owns its dialog while it is open, and reads and
/// stores its state.
class TextOutputEditor : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the editor. The window's actions also work in
    /// the dialog.
    TextOutputEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                     const QList<QAction*>& actions);
    ~TextOutputEditor() override;

    bool isOpen() const { return bool(m_dialog); }
    /// Returns whether the dialog contains changes that are not stored.
    bool isChanged() const;
    /// Returns the state of the open dialog, or an empty optional if the dialog is not open.
    std::optional<TextOutputState> state() const;
    /// Stores the state of the open dialog in the project. Returns whether it is stored.
    bool store();
    /// Asks whether to store changes. Returns false if the user cancels or storing fails.
    bool mayLeave();

    /// Opens the dialog with the state of the project, or raises the dialog if it is already open.
    void show();
    /// Opens a new dialog with a state that differs from the saved state in the project.
    void reopen(const TextOutputState& state);
    /// Replaces the open dialog with a new dialog in the current language.
    void recreate();
    /// Destroys the dialog without asking.
    void close();

Q_SIGNALS:
    /// Emitted when isChanged() may have changed.
    void modified();

private:
    void create();
    cd_error_t load();
    void reload();
    void closeLater();
    void exportContents(const QString& contents);

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    QList<QAction*> m_actions;
    std::unique_ptr<TextOutputDialog> m_dialog; // exists while it is open
};

} // namespace workbench
