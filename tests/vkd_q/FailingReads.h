#pragma once

/// While the object exists, the files that SQLite opens pass a layer in which reads of databases
/// can fail with EIO, as those of a worn disk do.
class FailingReads
{
public:
    FailingReads();
    ~FailingReads();
    FailingReads(const FailingReads&) = delete;
    FailingReads& operator=(const FailingReads&) = delete;

    /// Lets the next `times` reads that contain the byte at this offset fail.
    void failAt(int offset, int times);
};
