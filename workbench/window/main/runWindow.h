#pragma once

#include "window/main/MainWindow.h"

namespace workbench {

/// Shows the window with a project, or without one if the path is empty, until the user closes it.
/// Needs a QApplication. Returns the exit code.
int runWindow(const QString& path);

} // namespace workbench
