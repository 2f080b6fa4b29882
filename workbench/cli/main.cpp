#include "cli/commands.h"
#include "cli/program.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
/// Returns the arguments with the command inserted if it is missing: on a desktop, no argument or a
/// single file name opens the window.
QStringList commandOf(const QStringList& arguments)
{
    const bool isFile = arguments.size() == 1 && !workbench::isCommand(arguments[0]) &&
                        QFileInfo(arguments[0]).isFile();
    if (workbench::hasDisplay() && (arguments.isEmpty() || isFile))
        return QStringList(QStringLiteral("window")) + arguments;
    return arguments;
}
} // namespace

int main(int argc, char* argv[])
{
    workbench::beginProgram();
    const QStringList arguments = workbench::programArguments(argc, argv);
    const QCoreApplication application(argc, argv);
    return workbench::runCommand(workbench::runNamedCommand, commandOf(arguments));
}
