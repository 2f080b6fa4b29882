#pragma once

namespace workbench {

/// Collects the platform's log messages while a program runs, so that a failed command prints only
/// its own error message, which contains the reason. The log messages are for diagnosis; no code
/// reads them.
class PlatformLog
{
public:
    static void install();
    /// Prints the messages as warnings to standard error, without duplicates.
    static void print();
};

} // namespace workbench
