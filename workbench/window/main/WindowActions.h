#pragma once

#include <QObject>
#include <QVector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace workbench {

/// The menus, the tool bar and their actions. The window connects the actions with the classes that
/// carry them out.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Adds menus and tool bar to the window, which becomes the owner.
    explicit WindowActions(QMainWindow* window);

    /// Sets texts and shortcuts in the language of the desktop.
    void setTexts();
    /// Enables the actions that are possible: nearly all need a project, which must not change
    /// while groups are picked. A project with a missing file cannot be reloaded.
    void enable(bool hasProject, bool isPicking, bool isFileGone = false);
    void setHasScript(bool hasScript);
    /// Lists files in the menu of recent files. The data of each action is the path.
    void setRecentFiles(const QStringList& paths);

    /// Returns the actions whose shortcuts must also work in modeless dialogs. Shortcuts of the
    /// whole application would also work during a modal dialog while it has a list open.
    QList<QAction*> besideDialogs() const;

    QVector<QAction*> newFromSample; ///< the data is the name of the model
    QAction* newFromFile;
    QAction* open;
    QAction* reload;
    QAction* saveAs;
    QAction* copyScript;
    QAction* saveScript;
    QAction* exportSheets;
    QAction* quit;
    QVector<QAction*> views; ///< the data is an AnimatorViewControl
    QAction* design;
    QAction* output;
    QAction* textOutput;
    QAction* sheet;
    QAction* german;
    QAction* english;
    QAction* help;           ///< for the widget with the focus
    QVector<QAction*> books; ///< of the help; the data is the first topic of each
    QAction* about;

    QMenu* recentMenu = nullptr;
    QMenu* viewMenu = nullptr;

private:
    QAction* add(const char* name);
    void addSamples();
    void addViews();
    void addBooks();
    void addMenus(QMainWindow* window);
    void addToolBar(QMainWindow* window);
    void setShortcuts();

    QMenu* m_fileMenu = nullptr;
    QMenu* m_newMenu = nullptr;
    QMenu* m_projectMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QToolBar* m_toolBar = nullptr;
};

} // namespace workbench
