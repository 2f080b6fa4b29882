#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

namespace workbench {

namespace {

/// A command, implemented by this program or by another program in the same folder.
struct Command
{
    const char* name;
    int (*run)(const QStringList&);
    const char* program; ///< null if this program implements the command
    const char* summary;
};

constexpr Command Commands[] = {
    {"new", newCommand, nullptr, "create a project file from a model"},
    {"script", scriptCommand, nullptr, "print the script of a project's plots"},
    {"outputs", outputsCommand, nullptr, "print the names of a project's outputs"},
    {"check", checkCommand, nullptr, "check a script: statements, keywords, definitions, load cases"},
    {"catalogue", catalogueCommand, nullptr, "print and check a catalogue of plots"},
    {"rows", rowsCommand, nullptr, "print and change the design parameters of a project"},
    {"tree", treeCommand, nullptr, "print the plots that a project offers, with their check marks"},
    {"snapshots", nullptr, "plib_workbench_snapshots",
     "save screenshots of every page and dialog in a folder"},
    {"window", nullptr, "plib_workbench_window", "open the desktop window"},
};

QString pathOf(const char* program)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(program));
}

/// Returns whether the program that implements a command is installed.
bool isThere(const Command& command)
{
    return !command.program || QFile::exists(pathOf(command.program));
}

const Command* commandOf(const QString& name)
{
    for (const Command& command : Commands)
        if (name == QLatin1String(command.name) && isThere(command))
            return &command;
    return nullptr;
}

QString usage()
{
    QString text = QStringLiteral("Usage: plib_workbench COMMAND ...\n\nCommands:\n");
    for (const Command& command : Commands)
        if (isThere(command))
            text += QStringLiteral("  %1 %2\n")
                        .arg(QLatin1String(command.name), -12)
                        .arg(QLatin1String(command.summary));
    return text + QStringLiteral("\nplib_workbench COMMAND --help describes a command.\n");
}

/// Replaces this process with the other program. Does not return; throws a CommandError if it
/// fails.
int becomeProgram(const char* program, const QStringList& arguments)
{
    const QByteArray path = QFile::encodeName(pathOf(program));
    std::vector<QByteArray> texts{path};
    for (const QString& argument : arguments.mid(1))
        texts.push_back(argument.toLocal8Bit());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    execv(path.constData(), pointers.data());
    throw CommandError{QStringLiteral("cannot start %1: %2")
                           .arg(QFile::decodeName(path), QString::fromLocal8Bit(strerror(errno)))};
}
} // namespace

bool isCommand(const QString& name)
{
    return commandOf(name) != nullptr;
}

int runNamedCommand(const QStringList& arguments)
{
    const QString name = arguments.value(0);
    if (name.isEmpty() || name == QLatin1String("--help") || name == QLatin1String("-h")) {
        print(usage());
        return 0;
    }
    if (name == QLatin1String("--version")) {
        print(QCoreApplication::applicationName() + QLatin1Char(' ') +
              QCoreApplication::applicationVersion() + QLatin1Char('\n'));
        return 0;
    }
    const Command* command = commandOf(name);
    if (!command)
        throw CommandError{
            QStringLiteral("unknown command \"%1\"; --help lists the commands").arg(name)};
    return command->program ? becomeProgram(command->program, arguments) : command->run(arguments);
}

} // namespace workbench
