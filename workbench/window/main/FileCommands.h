#pragma once

#include "window/main/NewProject.h"
#include "window/main/UnsavedChanges.h"

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QObject>

#include <functional>
#include <memory>

class AnimatorView;
class VKD_H_ZOBDoc;

namespace workbench {

class DesignEditor;
class OpenProject;
class OutputEditor;
class OutputScript;
class TextOutputEditor;
class WindowActions;
class WindowMessages;

/// The parts of the main window that FileCommands uses.
struct ProjectParts
{
    OpenProject* project;
    WindowMessages* messages;
    AnimatorView* view;
    DesignEditor* design;
    OutputEditor* output;
    OutputScript* script;
    TextOutputEditor* textOutput;
    /// Shows the open project, except for the model. Returns whether all data was read.
    std::function<bool()> showContents;
};

/// The project commands of the File menu: new, open, reload, save, save as and close. The class
/// asks about unsaved selections before a project is closed, and loads the model of a newly opened
/// project into the view. The window shows all other data.
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /// The parts and actions are not owned and must outlive the object.
    FileCommands(const ProjectParts& parts, const MakeProject& makeProject, WindowActions* actions);

    /// Replaces the open project. If the file cannot be opened, shows a message and keeps the open
    /// project.
    bool open(const QString& path);
    /// Opens a file after the window has first been painted, because a message or a slow disk would
    /// delay painting.
    void openAfterPainting(const QString& path) { m_pathToOpen = path; }
    /// Must be called each time the window has been painted.
    void painted();
    /// Opens a project file, or creates a project from a model file. Asks about unsaved changes.
    void openFile(const QString& path);
    /// Stores the unsaved changes in the project.
    void save();
    /// Saves the project under another name and opens it. Returns whether the user chose a name and
    /// the file was written.
    bool saveAs();
    /// Asks whether to store unsaved changes. Returns false if the user wants to keep the project
    /// open.
    bool mayLeave();

Q_SIGNALS:
    /// Emitted after the open project has been replaced or closed, before the new project is shown,
    /// and if openAfterPainting() has failed.
    void replaced();

private:
    enum class Camera { Standard, Keep };

    void connectActions(const WindowActions& actions);
    void newFromFile();
    void newProject(const QString& model);
    void chooseProject();
    void leaveFor(const QString& path);
    void close();
    void reload();
    bool openDocument(const QString& path, Camera camera);
    std::unique_ptr<VKD_H_ZOBDoc> setDocument(std::unique_ptr<VKD_H_ZOBDoc> document);
    VkdStatus showModel(ZobHandle project);
    bool showContents();
    void showProject(const VkdStatus& modelStatus);
    void showFirstProject();
    bool takeOver(const QString& path);
    bool mayLeaveMissingFile();

    ProjectParts m_parts;
    NewProject m_newProject;
    UnsavedChanges m_changes;
    WindowActions* m_actions;
    QString m_pathToOpen;           // opened after the next paint event
    bool m_isProjectToShow = false; // shown after the next paint event
};

} // namespace workbench
