#include "cli/CommandLine.h"
#include "cli/program.h"
#include "window/main/runWindow.h"
#include "window/support/WindowSettings.h"

#include <vkd_qt_qt6.h>

#include <QApplication>

#include <memory>

namespace {
using namespace workbench;

int openWindow(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Opens the desktop window, with FILE if one is given. Needs a "
                                    "display."),
                     {QStringLiteral("[FILE]")}, {languageOption()});
    line.parse(arguments);
    if (!hasDisplay())
        throw CommandError{QStringLiteral("the window needs a display")};
    applyLanguage(line);
    if (line.has("language")) // otherwise the window restores its last language
        WindowSettings().setLanguage(vkd::desktopLanguage());
    return runWindow(line.argument(0));
}

/// Creates an application without widgets if there is no display, because Qt would abort otherwise.
std::unique_ptr<QCoreApplication> newApplication(int& argc, char* argv[])
{
    if (!hasDisplay())
        return std::make_unique<QCoreApplication>(argc, argv);
    vkd_qt_enableHighDpi();
    return std::make_unique<QApplication>(argc, argv);
}
} // namespace

int main(int argc, char* argv[])
{
    beginProgram();
    const QStringList arguments = programArguments(argc, argv);
    const auto application = newApplication(argc, argv);
    return runCommand(openWindow, QStringList(QStringLiteral("window")) + arguments);
}
