#pragma once

#include <QObject>

namespace workbench {

class WindowActions;
class WindowMessages;

/// Help for the main window: the help key in the window and all its dialogs, the actions of the
/// Help menu, and the About box.
class WindowHelp : public QObject
{
    Q_OBJECT

public:
    /// The object is owned by the window of `messages`. `messages` must outlive the actions of the
    /// window.
    WindowHelp(WindowMessages* messages, const WindowActions& actions);

private:
    void show(const QString& topic, QWidget* caller);
    void showAbout();

    WindowMessages* m_messages;
};

} // namespace workbench
