#pragma once

namespace workbench {

/// Holds back the log lines of the platform while a program runs. So a failed command prints only
/// its error, which has the reason from a status. The lines are for diagnosis; no code reads them.
class PlatformLog
{
public:
    static void install();
    /// Prints the lines as warnings to standard error, each once.
    static void print();
};

} // namespace workbench
