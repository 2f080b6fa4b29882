#pragma once

#include <QStringList>

namespace workbench {

/// Returns a file name with this suffix, for example ".dat", for each output. Replaces characters
/// that file systems do not allow, and appends a number to names that would otherwise be equal,
/// ignoring case.
QStringList outputFileNames(const QStringList& outputs, const QString& suffix);

} // namespace workbench
