#include "file/SequenceRewrite.h"

#include "file/recordChecksum.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

#include <cstring>

namespace {
constexpr std::size_t MostBufferedBytes = 65536;

constexpr char OverwriteSql[] = "UPDATE record SET data = buffered_record(position)"
                                " WHERE key1=?1 AND key2=?2 AND position>=?3 AND position<?4";
constexpr char InsertSql[] = "INSERT INTO record VALUES(?1, ?2, ?3, buffered_record(?3))";
constexpr char CutSql[] = "DELETE FROM record WHERE key1=?1 AND key2=?2 AND position>=?3";
// Only files of other programs can contain negative positions. With OR in one statement, SQLite
// would visit all records of the pair.
constexpr char NegativeSql[] = "DELETE FROM record WHERE key1=?1 AND key2=?2 AND position<0";
constexpr char TouchSql[] = "PRAGMA user_version = 2";
static_assert(ZobSchemaVersion == 2);
} // namespace

SequenceRewrite::SequenceRewrite(sqlite3* connection)
    : m_connection(connection)
{
    // If this fails, preparing the statements fails as well.
    sqlite3_create_function(connection, "buffered_record", 1, SQLITE_UTF8 | SQLITE_DIRECTONLY, this,
                            bufferedRecord, nullptr, nullptr);
}

void SequenceRewrite::begin(KeyPair pair, int end)
{
    drop();
    m_isActive = true;
    m_pair = pair;
    m_end = end;
    m_next = 0;
}

int SequenceRewrite::append(const void* record, int length)
{
    const std::size_t start = m_bytes.size();
    const auto size = std::size_t(length);
    m_bytes.resize(start + size + ChecksumBytes);
    if (length > 0)
        std::memcpy(m_bytes.data() + start, record, size);
    writeChecksum(m_pair, m_next, m_bytes.data() + start, length);
    m_ends.push_back(m_bytes.size());
    ++m_next;
    return m_bytes.size() < MostBufferedBytes && m_next < m_end ? SQLITE_DONE : flush();
}

int SequenceRewrite::flush()
{
    const int count = int(m_ends.size());
    const int first = m_next - count;
    int code = SQLITE_DONE;
    if (count > 0) {
        m_overwrite.start(m_connection, OverwriteSql, m_pair.first, m_pair.second);
        m_overwrite.bind(3, first);
        m_overwrite.bind(4, m_next);
        code = m_overwrite.run();
        if (code == SQLITE_DONE && sqlite3_changes(m_connection) != count)
            code = insertBuffered(first);
    }
    m_ends.clear();
    m_bytes.clear();
    return code;
}

/// Continues without the stored records. The positions in files of other programs may have gaps.
int SequenceRewrite::insertBuffered(int first)
{
    m_end = first;
    int code = cut(first);
    for (int position = first; position < m_next && code == SQLITE_DONE; ++position) {
        m_insert.start(m_connection, InsertSql, m_pair.first, m_pair.second);
        m_insert.bind(3, position);
        code = m_insert.run();
    }
    return code;
}

int SequenceRewrite::cut(int position)
{
    m_cut.start(m_connection, CutSql, m_pair.first, m_pair.second);
    m_cut.bind(3, position);
    if (const int code = m_cut.run(); code != SQLITE_DONE)
        return code;
    m_negative.start(m_connection, NegativeSql, m_pair.first, m_pair.second);
    return m_negative.run();
}

int SequenceRewrite::finish()
{
    // After some failures, SQLite itself rolls back. Another statement would be committed on its
    // own.
    int code = SQLITE_DONE;
    if (sqlite3_get_autocommit(m_connection) == 0) {
        code = flush();
        if (code == SQLITE_DONE)
            code = cut(m_next);
        if (code == SQLITE_DONE)
            code = touchFile();
    }
    drop();
    return code;
}

/// Writes the header of the file, so that the commit syncs the file even if all records are
/// unchanged. If the removal of its journal could not be synced, the change that wrote these
/// records is not durable yet.
int SequenceRewrite::touchFile()
{
    m_touch.prepare(m_connection, TouchSql);
    return m_touch.run();
}

void SequenceRewrite::drop()
{
    m_isActive = false;
    m_ends.clear();
    m_bytes = {}; // releases the memory of large records
}

/// The SQL function buffered_record(position) returns the bytes to store at the position.
void SequenceRewrite::bufferedRecord(sqlite3_context* context, int, sqlite3_value** values)
{
    const auto rewrite = static_cast<const SequenceRewrite*>(sqlite3_user_data(context));
    const std::vector<std::size_t>& ends = rewrite->m_ends;
    const int index = sqlite3_value_int(values[0]) - (rewrite->m_next - int(ends.size()));
    if (index < 0 || std::size_t(index) >= ends.size())
        return sqlite3_result_null(context);
    const std::size_t start = index == 0 ? 0 : ends[std::size_t(index) - 1];
    sqlite3_result_blob64(context, rewrite->m_bytes.data() + start,
                          ends[std::size_t(index)] - start, SQLITE_STATIC);
}
