#pragma once

#include <QStringList>

namespace workbench {

/// Runs the command that the first argument names, or prints the help of the program. Throws as the
/// commands do. A command of another program does not return: that program takes over the process.
int runNamedCommand(const QStringList& arguments);

/// Whether there is a command of this name.
bool isCommand(const QString& name);

// The commands of this program. Each takes the arguments from its own name on, throws a
// CommandError if it cannot do its work, and gives the exit code.
int newCommand(const QStringList& arguments);
int scriptCommand(const QStringList& arguments);
int catalogueCommand(const QStringList& arguments);
int rowsCommand(const QStringList& arguments);
int treeCommand(const QStringList& arguments);

} // namespace workbench
