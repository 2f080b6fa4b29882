#pragma once

#include <QString>

namespace workbench {

/// Makes a project file, which must not exist yet, from a model: the name of a sample or a model
/// file. Titles are taken in the language of the desktop. The result is a line that says what the
/// project holds; throws a CommandError, and leaves no file, if it cannot be made.
QString newProject(const QString& path, const QString& model);

} // namespace workbench
