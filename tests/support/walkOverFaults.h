#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace testsupport {

/// An operation that changes the files of a folder.
struct Operation
{
    /// Returns why it failed, or an empty text. No file is open before or afterwards.
    std::function<QString()> run;
    /// Returns what is stored.
    std::function<QByteArray()> state;
    int stride = 1; ///< distance of the calls that fail in turn
};

/// Runs the operation with each fault of FaultyDisk at each of its calls. Either the old state or
/// the new one must be stored afterwards, after a success the new one even if the power is cut. A
/// failure must be reported with the system's reason and must leave the old state. Repeating the
/// operation must succeed and leave no other files.
void walkOverFaults(const QString& folder, const Operation& operation);

} // namespace testsupport
