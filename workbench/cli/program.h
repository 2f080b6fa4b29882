#pragma once

#include <QStringList>

namespace workbench {

/// Must be called first in main(). Starts collecting the platform's log messages, and sets the
/// desktop's language and the application's name and version. All programs of the workbench have
/// the same application name, because they are one application to the user.
void beginProgram();

/// Returns the arguments of main() without the program name.
QStringList programArguments(int argc, char* argv[]);

/// Returns whether there is a display for a window.
bool hasDisplay();

/// Runs a command and returns its exit code, or 1 after a failure. Prints the help to standard
/// output and a failure as one line to standard error. On success, prints the platform's log
/// messages as warnings to standard error.
int runCommand(int (*command)(const QStringList&), const QStringList& arguments);

} // namespace workbench
