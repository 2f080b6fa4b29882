#pragma once

#include "window/main/MainWindow.h"

namespace workbench {

/// Shows the window on a project, or empty without a path, until the user closes it. Needs a
/// QApplication. The result is the exit code.
int runWindow(const QString& path);

} // namespace workbench
