#pragma once

#include <QStringList>

namespace workbench {

/// Runs the command that the arguments name, the program's name first. Results go to standard
/// output; a failure is one line on standard error. The result is the exit code, 0 or 1.
int run(const QStringList& arguments);

/// Whether there is a command of this name.
bool isCommand(const QString& name);

// The commands. Each takes the arguments from its own name on, throws a CommandError if it cannot
// do its work, and gives the exit code.
int newCommand(const QStringList& arguments);
int scriptCommand(const QStringList& arguments);
int catalogueCommand(const QStringList& arguments);
int rowsCommand(const QStringList& arguments);
int treeCommand(const QStringList& arguments);
int snapshotsCommand(const QStringList& arguments); // needs a QApplication
int windowCommand(const QStringList& arguments);    // needs a QApplication

/// How many pixels a point of the pictures is to have, which Qt has to know before it starts.
int snapshotsPixelRatio(const QStringList& arguments);

} // namespace workbench
