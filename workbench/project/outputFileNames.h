#pragma once

#include <QStringList>

namespace workbench {

/// Returns a file name with this suffix (".dat") for each output. Characters that file systems do
/// not allow are replaced, and names that are then equal, ignoring case, get a number.
QStringList outputFileNames(const QStringList& outputs, const QString& suffix);

} // namespace workbench
