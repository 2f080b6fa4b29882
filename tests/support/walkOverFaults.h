#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace testsupport {

/// An operation that changes the files of a folder.
struct Operation
{
    /// Returns the reason if the operation failed, otherwise an empty string. No file is open
    /// before or after the call.
    std::function<QString()> run;
    QString project; ///< the file that the operation reads or writes
    int stride = 1;  ///< distance between the calls that are made to fail; PLIB_FAULT_STRIDE
                     ///< replaces it
};

/// Runs the operation with each fault of FaultyDisk at each of its calls. Afterwards either the old
/// or the new state must be stored; on success, the new state must be stored even if the power is
/// cut. A failure must be reported with the system's reason and must leave the old state. Repeating
/// the operation must succeed and leave no other files.
void walkOverFaults(const QString& folder, const Operation& operation);

} // namespace testsupport
