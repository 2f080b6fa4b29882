#pragma once

#include <QObject>
#include <QVector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace workbench {

/// The menus, the tool bar and their actions. They do nothing by themselves; the window connects
/// them.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Adds menus and tool bar to the window, which becomes the owner.
    explicit WindowActions(QMainWindow* window);

    /// Texts and short cuts in the language of the desktop.
    void setTexts();
    /// What can be done: nearly all of it needs a project, and while groups are picked the project
    /// must stay as it is. A project whose file is gone cannot be reloaded.
    void enable(bool hasProject, bool isPicking, bool isFileGone = false);
    void setHasScript(bool hasScript);
    /// The files to open again. The data of each of the menu's actions is its path.
    void setRecentFiles(const QStringList& paths);

    /// What a dialog that is not modal is to hear the short cuts of, too. Short cuts of the whole
    /// program would also pass by modal dialogs, whenever one has a list open.
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
    QAction* help;           ///< on the part of the window that has the focus
    QVector<QAction*> books; ///< of the help; the data is the topic that each begins with
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
