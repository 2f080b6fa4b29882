#pragma once

#include <vkd_progress.h>

#include <QString>

#include <functional>

namespace workbench {

/// Creates a project file, which must not exist yet, from the name of a sample or a model file.
/// Returns the reason if this fails, an empty text after a success, and any other text if `goOn`
/// returned false.
using MakeProject =
    std::function<QString(const QString& path, const QString& model, const VkdGoOn& goOn)>;

/// Creates the file by running the command line, because the window uses the library only through
/// its exported headers. If it is cancelled, the process is killed, and its temporary files are
/// those of a ZobFilePlace for `path`. Needs a QCoreApplication.
QString makeProjectFile(const QString& path, const QString& model, const VkdGoOn& goOn);

} // namespace workbench
