#pragma once

#include "vkd_q_export.h"

#include <optional>
#include <string>

/// Searches for the file `name`, which may contain folders, in the suite's search path: the folders
/// in the environment variable VKD_SHARE (separated as in PATH), the installed share folder, and
/// the share folder of the build tree. The last two folders are located relative to this library,
/// so that a relocated installation still works. Returns the path in the encoding of the file
/// system, or nothing if no folder contains the file.
///
/// `mode` belongs to the suite's interface and is ignored.
VKD_Q_EXPORT std::optional<std::string> vkd_lib_searchpath(const char* name, int mode);
