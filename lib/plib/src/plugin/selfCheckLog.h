#pragma once

#include <QStringList>

namespace plib {

/// Returns the path of the log file from the arguments of vkd_unittests(), with native separators.
QString selfCheckLog(const QStringList& arguments);

/// Returns whether QtTest can write to this file, and creates it. QtTest ends a file name at a
/// comma, and exits the process if it cannot open the file.
bool canQtTestLogTo(const QString& log);

} // namespace plib
