#include "cli/program.h"

#include "cli/CommandLine.h"
#include "cli/PlatformLog.h"

#include <vkd_language.h>

#include <QCoreApplication>
#include <QLocale>

#include <cstdio>

namespace workbench {

namespace {
int runOrHelp(int (*command)(const QStringList&), const QStringList& arguments)
{
    try {
        return command(arguments);
    } catch (const HelpWanted& help) {
        print(help.text);
        return 0;
    }
}

/// Prints one line to standard error, even if a file name or message contains newlines.
void complain(const QString& text)
{
    std::fprintf(stderr, "plib_workbench: %s\n", qUtf8Printable(text.simplified()));
}
} // namespace

void beginProgram()
{
    PlatformLog::install();
    const bool isGerman = QLocale().language() == QLocale::German;
    vkd::setDesktopLanguage(isGerman ? vkd::Language::German : vkd::Language::English);
    QCoreApplication::setApplicationName(QStringLiteral("plib_workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
}

QStringList programArguments(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

bool hasDisplay()
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    return false;
}

int runCommand(int (*command)(const QStringList&), const QStringList& arguments)
{
    try {
        const int exitCode = runOrHelp(command, arguments);
        PlatformLog::print();
        return exitCode;
    } catch (const CommandError& error) {
        complain(error.text);
        return 1;
    }
}

} // namespace workbench
