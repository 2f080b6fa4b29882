#pragma once

#include "file/SequenceRewrite.h"
#include "file/Statement.h"
#include "vkd_zob.h"

#include <map>
#include <utility>

struct sqlite3;

/// The table with the records of a store, keyed by key pair and position, and its prepared
/// statements. The class does not handle transactions. Operations that return an int return an
/// SQLite result code.
class RecordTable
{
public:
    using KeyPair = std::pair<int, int>;

    /// Uses an open connection, which must outlive the table.
    explicit RecordTable(sqlite3* connection);

    /// Moves the iteration to the record. Consecutive positions are read in a single execution of
    /// the statement. Returns SQLITE_ROW if the record exists.
    int stepTo(KeyPair pair, int position);
    /// Copies the current record of the iteration to `record`, truncated to `*length` bytes.
    /// Returns VKD_ZOB_DAMAGED if its checksum is wrong.
    cd_error_t deliver(void* record, int* length) const;
    /// Stops the iteration, which would otherwise keep the file locked.
    void stopWalk();

    /// Returns SQLITE_ROW if any record exists for the pair.
    int findAny(KeyPair pair);
    /// Replaces the pair with the first used pair that is not less than it. Returns SQLITE_ROW if
    /// there is such a pair.
    int findNext(KeyPair* pair);

    /// Adds checksums to the records of a version 1 file. Call this function in a transaction
    /// before any record is changed, and call rolledBack() if the transaction is rolled back.
    /// Returns SQLITE_OK even if the file already has checksums.
    int upgrade();
    /// Returns whether the records have checksums. Returns false if the version cannot be read.
    bool isUpgraded();
    /// Drops the cached data that a rolled-back transaction may have changed.
    void rolledBack();

    // The following operations return SQLITE_DONE on success.
    int clear(KeyPair pair);
    int writeFirst(KeyPair pair, const void* record, int length);
    int append(KeyPair pair, const void* record, int length);

    // The following operations may be used only in a transaction that locks the file against other
    // programs. Records that are appended to a cleared sequence overwrite the old records.
    int clearInside(KeyPair pair);
    /// Looks up the end of the sequence only once and caches it.
    int appendInside(KeyPair pair, const void* record, int length);
    /// Completes the replacement of a cleared sequence. Call this before the commit.
    int settle();
    /// Drops the cached ends of sequences. Call this before other programs can write again.
    void forgetEnds() { m_ends.clear(); }

private:
    static constexpr int NoPosition = -2; // value that no position follows

    int findEnd(KeyPair pair, int* position);
    int findVersion();

    sqlite3* m_connection;
    Statement m_get, m_any, m_next, m_first, m_append, m_appendAt, m_end, m_clear, m_version;
    bool m_hasChecksums = false; // also false while the file's version is unknown
    KeyPair m_walkPair{};
    int m_walkPosition = NoPosition; // position of the record that m_get returned
    std::map<KeyPair, int> m_ends;   // ends of sequences with appended records
    SequenceRewrite m_rewrite;
};
