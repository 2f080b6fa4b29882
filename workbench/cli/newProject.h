#pragma once

#include <vkd_progress.h>

#include <QString>

namespace workbench {

/// Creates a project file, which must not exist yet, from a model: the name of a sample or a model
/// file. Titles are in the language of the desktop. Returns a line with the contents of the
/// project. Throws a CommandError and leaves no file, if this fails or `goOn` returned false.
QString newProject(const QString& path, const QString& model, const VkdGoOn& goOn = VkdGoOn());

} // namespace workbench
