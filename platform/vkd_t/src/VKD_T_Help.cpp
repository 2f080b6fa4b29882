#include "VKD_T_Help.h"

#include "HelpBook.h"
#include "HelpWindow.h"

#include <vkd_language.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QPointer>

namespace {
Q_LOGGING_CATEGORY(lcHelp, "vkd.help")

QPointer<HelpWindow> helpWindow;

void deleteHelpWindow()
{
    delete helpWindow.data();
}

HelpWindow& openWindow()
{
    if (helpWindow && !helpWindow->isVisible())
        deleteHelpWindow(); // closed, but not yet deleted by the event loop
    if (!helpWindow) {
        helpWindow = new HelpWindow;
        qRemovePostRoutine(deleteHelpWindow);
        qAddPostRoutine(deleteHelpWindow); // Qt drops post routines when an application ends
    }
    return *helpWindow;
}
} // namespace

bool VKD_T_Help::show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic)
{
    const QString& bookName = book;
    const QString& topicName = topic;
    const HelpBook found(bookName, vkd::desktopLanguage());
    const int number = found.find(topicName);
    if (number < 0) {
        qCWarning(lcHelp, "no help: the book %s has no topic %s%s", qUtf8Printable(bookName),
                  qUtf8Printable(topicName),
                  found.topics().isEmpty() ? ", it is not on the search path" : "");
        return false;
    }
    HelpWindow& window = openWindow();
    window.open(found, number);
    window.showFor(parent);
    return true;
}
