#pragma once

#include <QString>

namespace workbench {

/// Returns the path of a file on the search path, or an empty string if there is none. The name may
/// contain folders.
QString installedFile(const QString& name);

} // namespace workbench
