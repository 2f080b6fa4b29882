#pragma once

#include "project/OpenProject.h"
#include "window/files/ProjectAccess.h"
#include "window/main/makeProjectFile.h"
#include "window/support/WindowMessages.h"

#include <vkd_language.h>

#include <QMainWindow>

class QLabel;

namespace workbench {

class DesignEditor;
class FileCommands;
class GroupMenu;
class OutputCommands;
class OutputEditor;
class OutputScript;
class RowsInView;
class TextOutputEditor;
class WindowActions;
class WindowPanes;

/// The main window. It hosts the library's pages, and connects its panes and actions to the classes
/// that implement the commands: an editor for each dialog, and FileCommands for projects.
///
/// OK in a dialog and Apply in a dock immediately write to the project file. Only the rows in the
/// design dock, the outputs and the selection in the open dialog for the text output may be
/// unsaved, and the window asks whether to save them before the project is closed.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `makeProject` creates the files of new projects.
    explicit MainWindow(const MakeProject& makeProject = makeProjectFile,
                        QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Replaces the open project. If the new project cannot be opened, shows a message and keeps
    /// the open project.
    bool openProject(const QString& path);
    /// Opens a project after the window has first been painted, or shows the start page if the path
    /// is empty.
    void openAfterPainting(const QString& path);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createEditors(const MakeProject& makeProject);
    void connectActions();
    void connectPanes();
    void connectProject();
    void setTexts();
    void setTitle();
    void enableActions();

    void showReplaced();
    bool showProject();
    bool showContents();
    bool showRecords();
    void showNews();
    bool followOthers();
    void showModified();
    void setLanguage(vkd::Language language);

    WindowActions* m_actions;
    QLabel* m_contents;
    GroupMenu* m_groupMenu = nullptr;

    // The editors and their dialogs are destroyed before the project, and the project is destroyed
    // before the panes. The panes are destroyed before the window, whose docks then still emit
    // visibilityChanged().
    std::unique_ptr<WindowPanes> m_panes;
    OpenProject m_project;
    WindowMessages m_messages{this};
    ProjectAccess m_access{&m_project, &m_messages};
    std::unique_ptr<RowsInView> m_rowsInView;
    std::unique_ptr<DesignEditor> m_designEditor;
    std::unique_ptr<OutputEditor> m_outputEditor;
    std::unique_ptr<OutputScript> m_outputScript;
    std::unique_ptr<OutputCommands> m_outputCommands;
    std::unique_ptr<TextOutputEditor> m_textOutputEditor;
    std::unique_ptr<FileCommands> m_files;
};

} // namespace workbench
