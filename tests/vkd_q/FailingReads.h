#pragma once

/// While the object exists, SQLite opens files through a layer in which reads of databases can fail
/// with EIO, as on a failing disk, or take long.
class FailingReads
{
public:
    FailingReads();
    ~FailingReads();
    FailingReads(const FailingReads&) = delete;
    FailingReads& operator=(const FailingReads&) = delete;

    /// Makes the next `times` reads that contain the byte at this offset fail.
    void failAt(int offset, int times);
    /// Makes each read take this time, as on a slow disk.
    void slowDown(int milliseconds);
};
