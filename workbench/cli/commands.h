#pragma once

#include <QStringList>

namespace workbench {

/// Runs the command given by the first argument, or prints the help of the program. Throws a
/// CommandError, as the commands do. If another program implements the command, the function does
/// not return, because that program replaces the process.
int runNamedCommand(const QStringList& arguments);

/// Returns whether there is a command with this name.
bool isCommand(const QString& name);

// The commands of this program. The first argument is the command name. Each function returns the
// exit code, or throws a CommandError if it fails.
int newCommand(const QStringList& arguments);
int scriptCommand(const QStringList& arguments);
int checkCommand(const QStringList& arguments);
int catalogueCommand(const QStringList& arguments);
int rowsCommand(const QStringList& arguments);
int treeCommand(const QStringList& arguments);
int outputsCommand(const QStringList& arguments);

} // namespace workbench
