#pragma once

#include "window/main/MainWindow.h"

namespace workbench {

/// Shows the window with the project at the path, or without a project if the path is empty, until
/// the user closes the window. Needs a QApplication. Returns the exit code.
int runWindow(const QString& path);

} // namespace workbench
