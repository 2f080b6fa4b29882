#pragma once

#include <QByteArray>
#include <QString>

namespace testsupport {

/// The disk below a folder without subfolders. While the object exists, the calls of the system
/// that read or change a file there are counted, no matter which library makes them. One of them
/// can fail, or the power can be cut: then everything that was not synced is lost, including names
/// of files.
///
/// A program that links this replaces functions of the C library. At most one object may exist.
class FaultyDisk
{
public:
    enum class Fault {
        Once,     ///< the call fails with EIO
        ForGood,  ///< the call and all later ones fail with EIO
        Full,     ///< from this call on, creating and writing fail with ENOSPC
        PowerCut, ///< the power is cut before the call
        TornCut,  ///< the same, but random parts of the changes that were not synced are stored
        None
    };

    /// All files that exist now are stored. `call` is counted from 1; if the fault does not affect
    /// this call, the first later one that it affects fails.
    explicit FaultyDisk(const QString& folder, Fault fault = Fault::None, int call = 0);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// Returns the first call that failed, such as "write p-journal"; empty if none failed.
    QByteArray failedCall() const;
    /// Cuts the power unless it is cut already, and turns it on again. No call fails afterwards.
    void restart();
    /// Makes each read take this time.
    void slowDown(int milliseconds);
};

} // namespace testsupport
