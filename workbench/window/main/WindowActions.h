#pragma once

#include <QObject>
#include <QVector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace workbench {

/// The menus, the tool bar and their actions. The window connects the actions to the classes that
/// implement them.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the menus and the tool bar to the window, which owns them.
    explicit WindowActions(QMainWindow* window);

    /// Sets labels and shortcuts in the language of the desktop.
    void setTexts();
    /// Enables the actions that are currently possible. Nearly all actions need a project. A
    /// project whose file is missing cannot be reloaded.
    void enable(bool hasProject, bool isFileGone = false);
    void setHasScript(bool hasScript);
    /// Lists the files in the Recent Files menu. The data of each action is the path.
    void setRecentFiles(const QStringList& paths);

    /// Returns the actions whose shortcuts must also work in modeless dialogs. Application-wide
    /// shortcuts would also work in a modal dialog while one of its popup lists is open.
    QList<QAction*> besideDialogs() const;

    QVector<QAction*> newFromSample; ///< the data of each action is the name of the model
    QAction* newFromFile;
    QAction* open;
    QAction* reload;
    QAction* save;
    QAction* saveAs;
    QAction* close;
    QAction* copyScript;
    QAction* saveScript;
    QAction* exportSheets;
    QAction* quit;
    QVector<QAction*> views; ///< the data of each action is an AnimatorViewControl
    QAction* design;
    QAction* output;
    QAction* textOutput;
    QAction* sheet;
    QAction* german;
    QAction* english;
    QAction* help;           ///< shows the help for the widget with the focus
    QVector<QAction*> books; ///< help books; the data of each action is the first topic of the book
    QAction* about;

    QMenu* recentMenu = nullptr;
    QMenu* editMenu = nullptr; ///< the dock with the focus provides its actions
    QMenu* viewMenu = nullptr;
    QMenu* projectMenu = nullptr;

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
    QMenu* m_languageMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QToolBar* m_toolBar = nullptr;
};

} // namespace workbench
