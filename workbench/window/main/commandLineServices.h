#pragma once

#include "window/main/WindowServices.h"

namespace workbench {

/// The services of the command line, which is a program beside that of the window: the logic of the
/// library is not in this process a second time. Needs a QCoreApplication.
WindowServices commandLineServices();

} // namespace workbench
