#pragma once

#include "window/start/StartPage.h"

class QMainWindow;

namespace workbench {

/// Shows the start page in place of the model and of the docks, which would be empty while no
/// project is open. The page is created when it is first shown, so that it does not delay the start
/// with a project.
class StartScreen : public QObject
{
    Q_OBJECT

public:
    /// The widgets and actions that the object uses. They are not owned.
    struct Parts
    {
        QMainWindow* window;
        QWidget* model;   ///< its parent widget has a box layout
        int stateVersion; ///< for the state of the docks
        StartPage::Actions actions;
    };

    StartScreen(const Parts& parts, QObject* parent);

    void setShown(bool isShown);
    /// Returns the state that the docks have while the page is not shown.
    QByteArray dockState() const;

Q_SIGNALS:
    /// Emitted when the user chooses a recent project.
    void projectChosen(const QString& path);

private:
    void enter();
    void leave();
    void createPage();

    Parts m_parts;
    StartPage* m_page = nullptr;
    bool m_isShown = false;
    QByteArray m_state; // before the page was shown
};

} // namespace workbench
