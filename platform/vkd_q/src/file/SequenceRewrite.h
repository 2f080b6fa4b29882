#pragma once

#include "file/Statement.h"

#include <cstddef>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_context;
struct sqlite3_value;

/// Replaces the records of a cleared sequence in place. Programs usually store a sequence by
/// clearing it and appending all records again, although most records have not changed. SQLite does
/// not journal or write a page whose bytes stay the same, and it overwrites many records with one
/// statement faster than it deletes and inserts them. RecordTable uses this class within a change.
/// Operations that return an int return an SQLite result code, which is SQLITE_DONE on success.
class SequenceRewrite
{
public:
    using KeyPair = std::pair<int, int>;

    /// Uses an open connection, which must outlive the object.
    explicit SequenceRewrite(sqlite3* connection);
    SequenceRewrite(const SequenceRewrite&) = delete;
    SequenceRewrite& operator=(const SequenceRewrite&) = delete;

    /// Begins with position 0. The stored records before `end` will be overwritten.
    void begin(KeyPair pair, int end);
    bool isActive() const { return m_isActive; }
    /// Returns whether the next record of the pair overwrites a stored record.
    bool covers(KeyPair pair) const { return m_isActive && pair == m_pair && m_next < m_end; }
    /// Adds the next record. It is buffered, so a later call may return its failure.
    int append(const void* record, int length);
    /// Writes the buffered records and deletes the stored records that follow them.
    int finish();
    /// Drops the buffered records. Call this when the change is rolled back.
    void drop();

private:
    int flush();
    int cut(int position);
    int touchFile();
    int insertBuffered(int first);
    static void bufferedRecord(sqlite3_context* context, int, sqlite3_value** values);

    sqlite3* m_connection;
    Statement m_overwrite, m_insert, m_cut, m_negative, m_touch;
    bool m_isActive = false;
    KeyPair m_pair{};
    int m_end = 0;                   // the stored records before this position are overwritten
    int m_next = 0;                  // position of the next record
    std::vector<std::size_t> m_ends; // ends of the buffered records in m_bytes
    std::vector<unsigned char> m_bytes;
};
