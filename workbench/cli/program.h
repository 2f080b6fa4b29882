#pragma once

#include <QStringList>

namespace workbench {

/// Must be called first in main(): holds back the platform's log lines, sets the language of the
/// desktop, and the name and version of the application. All programs of the
/// workbench are one application to the user and have one name.
void beginProgram();

/// Returns the arguments of main() without the name of the program.
QStringList programArguments(int argc, char* argv[]);

/// Returns whether there is a display for a window.
bool hasDisplay();

/// Runs a command and returns the exit code, 0 or 1. Its help goes to standard output, a failure
/// to standard error as one line, and after a success the log lines of the platform as warnings.
int runCommand(int (*command)(const QStringList&), const QStringList& arguments);

} // namespace workbench
