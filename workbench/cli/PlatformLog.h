#pragma once

#include <QString>

namespace workbench {

/// Keeps the log lines of the platform instead of printing them, so that the one line which a
/// failed command prints can say the reason.
class PlatformLog
{
public:
    static void install();
    /// The lines since the last call, joined; warnings of others than the platform are printed.
    static QString take();
};

} // namespace workbench
