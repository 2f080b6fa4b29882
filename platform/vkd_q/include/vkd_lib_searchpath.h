#pragma once

#include "vkd_q_export.h"

#include <optional>
#include <string>

/// Looks for the file `name`, which may hold folders, on the suite's search path: first the folders
/// of the environment variable VKD_SHARE, parted as in PATH, then the installed share folder, then
/// the share folder of the build tree. Both of the latter are found from where this library lies,
/// so that a moved installation works.
///
/// `mode` is part of the suite's interface; every mode looks in the same places here.
/// The result is the path in the file system's own encoding, or nothing if no folder has the file.
VKD_Q_EXPORT std::optional<std::string> vkd_lib_searchpath(const char* name, int mode);
