#pragma once

#include <QObject>

namespace workbench {

class WindowActions;
class WindowMessages;

/// The help of the main window: the help key in all its dialogs, the actions of the Help menu and
/// the box about the program.
class WindowHelp : public QObject
{
    Q_OBJECT

public:
    /// The window of `messages` becomes the owner. `messages` outlives the actions of the window.
    WindowHelp(WindowMessages* messages, const WindowActions& actions);

private:
    void show(const QString& topic, QWidget* caller);
    void showAbout();

    WindowMessages* m_messages;
};

} // namespace workbench
