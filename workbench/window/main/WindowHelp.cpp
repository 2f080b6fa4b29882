#include "window/main/WindowHelp.h"

#include "window/main/WindowActions.h"
#include "window/support/HelpKey.h"
#include "window/support/WindowMessages.h"

#include <VKD_T_Help.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>

namespace workbench {

WindowHelp::WindowHelp(WindowMessages* messages, const WindowActions& actions)
    : QObject(messages->window())
    , m_messages(messages)
{
    QMainWindow* window = messages->window();
    setHelpTopic(window, "MERDAN/PARA");
    const auto help = [this](QWidget* caller) { show(helpTopic(caller), caller); };
    connect(new HelpKey(window), &HelpKey::helpWanted, this, help);
    connect(actions.help, &QAction::triggered, this,
            [window, help] { help(window->focusWidget() ? window->focusWidget() : window); });
    for (const QAction* book : actions.books)
        connect(book, &QAction::triggered, this,
                [this, window, book] { show(book->data().toString(), window); });
    connect(actions.about, &QAction::triggered, this, &WindowHelp::showAbout);
}

void WindowHelp::show(const QString& topic, QWidget* caller)
{
    const QByteArray book = topic.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray page = topic.section(QLatin1Char('/'), 1).toUtf8();
    if (!VKD_T_Help::show(caller, book.constData(), page.constData()))
        m_messages->complain(tr("The help is not installed."));
}

void WindowHelp::showAbout()
{
    QMessageBox::about(m_messages->window(), tr("About"),
                       tr("Workbench %1\n\nHosts the pages for design parameters and graphical "
                          "output, with its own projects.")
                           .arg(QApplication::applicationVersion()));
}

} // namespace workbench
