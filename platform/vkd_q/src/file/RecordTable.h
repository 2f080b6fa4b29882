#pragma once

#include "file/Statement.h"
#include "vkd_zob.h"

#include <map>
#include <utility>

struct sqlite3;

/// The records of a store, which are in one table by key pair and position, and the statements on
/// it. It does not handle transactions. Operations that return an int return SQLite's code.
class RecordTable
{
public:
    using KeyPair = std::pair<int, int>;

    /// Uses an open connection, which must outlive the table.
    explicit RecordTable(sqlite3* connection);

    /// Moves the walk to the record. Reading consecutive positions steps through a single execution
    /// of the statement. Returns SQLITE_ROW if the record exists.
    int stepTo(KeyPair pair, int position);
    /// Copies the current record of the walk, cut to the `*length` bytes of `record`. Returns
    /// VKD_ZOB_DAMAGED if its checksum is wrong.
    cd_error_t deliver(void* record, int* length) const;
    /// Stops the walk, which otherwise keeps the file locked.
    void stopWalk();

    /// Returns SQLITE_ROW if there is any record under the pair.
    int findAny(KeyPair pair);
    /// Sets the pair to the first used one that is not less. Returns SQLITE_ROW if there is one.
    int findNext(KeyPair* pair);

    /// Adds checksums to the records of a file of version 1. Call this in a transaction before any
    /// record is changed, and forgetVersion() if the transaction is rolled back. Returns SQLITE_OK,
    /// also if the file has checksums.
    int upgrade();
    /// Returns false also if the version cannot be read.
    bool isUpgraded();
    void forgetVersion() { m_hasChecksums = false; }

    // The following operations return SQLITE_DONE on success.
    int clear(KeyPair pair);
    int writeFirst(KeyPair pair, const void* record, int length);
    int append(KeyPair pair, const void* record, int length);
    /// Appends while no other program can write, so that the end of the sequence is looked up only
    /// once.
    int appendInside(KeyPair pair, const void* record, int length);
    /// Drops the cached ends of sequences. Call this before other programs can write again.
    void forgetEnds() { m_ends.clear(); }

private:
    static constexpr int NoPosition = -2; // no position follows it

    int findEnd(KeyPair pair, int* position);
    int findVersion();

    sqlite3* m_connection;
    Statement m_get, m_any, m_next, m_first, m_append, m_appendAt, m_end, m_clear, m_version;
    bool m_hasChecksums = false; // false also if the version of the file is not known yet
    KeyPair m_walkPair{};
    int m_walkPosition = NoPosition; // position of the record that m_get delivered
    std::map<KeyPair, int> m_ends;   // ends of sequences with appended records
};
