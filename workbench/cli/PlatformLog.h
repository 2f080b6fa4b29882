#pragma once

#include <QStringList>

namespace workbench {

/// Keeps the log lines of the platform instead of printing them, so that the one line which a
/// failed command prints can say the reason.
class PlatformLog
{
public:
    static void install();
    /// The lines since the last call, each once.
    static QStringList take();
};

} // namespace workbench
