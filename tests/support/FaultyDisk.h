#pragma once

#include <QByteArray>
#include <QString>

namespace testsupport {

/// Simulates the disk for a folder without subfolders. While the object exists, all system calls
/// that read or change a file in the folder are counted, regardless of the library that makes them.
/// One of the calls can fail, or the power can be cut, so that all data that was not synced is
/// lost, including file names.
///
/// Linking this file replaces functions of the C library. At most one object may exist at a time.
class FaultyDisk
{
public:
    enum class Fault {
        Once,     ///< the call fails with EIO
        ForGood,  ///< the call and all later calls fail with EIO
        Full,     ///< starting with this call, creating and writing fail with ENOSPC
        PowerCut, ///< the power is cut before the call
        TornCut,  ///< like PowerCut, but random parts of the unsynced changes are stored
        NameCut,  ///< like PowerCut, but the last unsynced NameChange is stored
        None      ///< no call fails; the power cannot be cut
    };

    /// All files that exist on construction count as stored. `call` is counted from 1; if the fault
    /// does not affect this call, the first later call that it affects fails.
    explicit FaultyDisk(const QString& folder, Fault fault = Fault::None, int call = 0);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// Returns the first call that failed, such as "write p-journal", or an empty string if no call
    /// failed.
    QByteArray failedCall() const;
    /// Cuts the power if it is not already cut, and restores it. No call fails afterwards.
    void restart();
    /// Delays each read by this time.
    void slowDown(int milliseconds);
};

} // namespace testsupport
