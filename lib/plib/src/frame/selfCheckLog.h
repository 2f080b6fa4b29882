#pragma once

#include <QStringList>

namespace plib {

/// The log file of the self-check, with native separators, from the arguments that a host passes
/// on.
QString selfCheckLog(const QStringList& arguments);

/// QtTest takes a comma for the end of the name, and ends the process over a file that it cannot
/// open. The file is created.
bool canQtTestLogTo(const QString& log);

} // namespace plib
