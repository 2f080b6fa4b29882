#pragma once

#include <QStringList>

namespace workbench {

/// Runs the command in the first argument, or prints the help of the program. Throws as the
/// commands do. A command of another program does not return: that program replaces this one in the
/// process.
int runNamedCommand(const QStringList& arguments);

/// Returns whether there is a command of this name.
bool isCommand(const QString& name);

// The commands of this program. The first argument is the name of the command. Each throws a
// CommandError if it fails, and returns the exit code.
int newCommand(const QStringList& arguments);
int scriptCommand(const QStringList& arguments);
int catalogueCommand(const QStringList& arguments);
int rowsCommand(const QStringList& arguments);
int treeCommand(const QStringList& arguments);

} // namespace workbench
