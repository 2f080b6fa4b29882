#pragma once

#include <vkd_progress.h>

#include <QString>

#include <functional>

namespace workbench {

/// Creates a project file, which must not exist yet, from the name of a sample model or from a
/// model file. Returns an empty string on success, otherwise the reason for the failure. If `goOn`
/// has returned false, the string is not empty, but its contents are undefined.
using MakeProject =
    std::function<QString(const QString& path, const QString& model, const VkdGoOn& goOn)>;

/// Creates the file by running the command line, because the window uses the library only through
/// its exported headers. Cancelling kills the process; the next ZobFilePlace for `path` removes its
/// temporary files. Needs a QCoreApplication.
QString makeProjectFile(const QString& path, const QString& model, const VkdGoOn& goOn);

} // namespace workbench
