#pragma once

#include "Statement.h"
#include "vkd_zob.h"

#include <map>
#include <utility>

struct sqlite3;

/// The records of a store, which lie in one table by key pair and position, and the statements on
/// it. It knows nothing of transactions. Operations that give an int answer SQLite's code.
class RecordTable
{
public:
    using KeyPair = std::pair<int, int>;

    /// Of an open connection, which outlives the table.
    explicit RecordTable(sqlite3* connection);

    /// Brings the walk to the record; who asks for one position after the other steps through one
    /// run of its statement. SQLITE_ROW if there is one.
    int stepTo(KeyPair pair, int position);
    /// Of the record at which the walk is; cut to the `*length` bytes that `record` has.
    cd_error_t deliver(void* record, int* length) const;
    /// A walk that is not stopped keeps the file locked.
    void stopWalk();

    /// SQLITE_ROW if there is any record under the pair.
    int findAny(KeyPair pair);
    /// Moves the pair to the first one in use from there on; SQLITE_ROW if there is one.
    int findNext(KeyPair* pair);

    // SQLITE_DONE if it was done.
    int clear(KeyPair pair);
    int writeFirst(KeyPair pair, const void* record, int length);
    int append(KeyPair pair, const void* record, int length);
    /// While nobody else writes, so that the end of the sequence is looked up only once.
    int appendInside(KeyPair pair, const void* record, int length);
    /// To be called before others may write again.
    void forgetEnds() { m_ends.clear(); }

private:
    static constexpr int NoPosition = -2; // is followed by no position

    int findEnd(KeyPair pair, int* position);

    sqlite3* m_connection;
    Statement m_get, m_any, m_next, m_first, m_append, m_appendAt, m_end, m_clear;
    KeyPair m_walkPair{};
    int m_walkPosition = NoPosition; // of the record that m_get has delivered
    std::map<KeyPair, int> m_ends;   // of sequences that were appended to
};
