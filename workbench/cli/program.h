#pragma once

#include <QStringList>

namespace workbench {

/// Must be called first in main(): holds back the platform's log lines, and sets the desktop's
/// language and the name and version of the application. All programs of the workbench are one
/// application to the user and have one name.
void beginProgram();

/// Returns the arguments of main() without the name of the program.
QStringList programArguments(int argc, char* argv[]);

/// Returns whether there is a display for a window.
bool hasDisplay();

/// Runs a command and returns its exit code, or 1 after a failure. Prints the help to standard
/// output, a failure as one line to standard error, and after a success the log lines of the
/// platform as warnings to standard error.
int runCommand(int (*command)(const QStringList&), const QStringList& arguments);

} // namespace workbench
