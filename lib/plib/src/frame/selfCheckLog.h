#pragma once

#include <QStringList>

namespace plib {

/// The log file of the self-check, with native separators, from the arguments that a host passes
/// on.
QString selfCheckLog(const QStringList& arguments);

} // namespace plib
