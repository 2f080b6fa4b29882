#pragma once

#include <QStringList>

namespace plib {

/// Returns the path of the log file, with native separators, for the arguments of vkd_unittests().
QString selfCheckLog(const QStringList& arguments);

/// Creates the file and returns whether QtTest can write to it. QtTest truncates a file name at a
/// comma, and exits the process if it cannot open the file.
bool canQtTestLogTo(const QString& log);

} // namespace plib
