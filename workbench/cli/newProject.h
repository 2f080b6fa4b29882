#pragma once

#include <vkd_progress.h>

#include <QString>

namespace workbench {

/// Creates a project file from a model. The file must not exist yet; `model` is the name of a
/// sample model or the path of a model file. Titles are in the desktop's language. Returns a line
/// that summarizes the project. If creation fails or `goOn` returns false, throws a CommandError
/// and does not leave a file.
QString newProject(const QString& path, const QString& model, const VkdGoOn& goOn = VkdGoOn());

} // namespace workbench
