#pragma once

#include <vkd_progress.h>

#include <QString>

namespace workbench {

/// Makes a project file, which must not exist yet, from a model: the name of a sample or a model
/// file. Titles are taken in the language of the desktop. The result is a line that says what the
/// project holds; throws a CommandError, and leaves no file, if it cannot be made or
/// `goOn` answered false.
QString newProject(const QString& path, const QString& model, const VkdGoOn& goOn = VkdGoOn());

} // namespace workbench
