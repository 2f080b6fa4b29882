#include "file/RecordTable.h"

#include "file/recordChecksum.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace {
constexpr char GetSql[] = "SELECT data FROM record WHERE key1=?1 AND key2=?2 AND position>=?3"
                          " ORDER BY position";
constexpr char AnySql[] = "SELECT 1 FROM record WHERE key1=?1 AND key2=?2 LIMIT 1";
constexpr char NextSql[] = "SELECT key1, key2 FROM record WHERE (key1, key2) >= (?1, ?2)"
                           " ORDER BY key1, key2 LIMIT 1";
constexpr char FirstSql[] = "INSERT OR REPLACE INTO record"
                            " VALUES(?1, ?2, 0, with_checksum(?1, ?2, 0, ?3))";
constexpr char AppendSql[] =
    "INSERT INTO record SELECT ?1, ?2, free, with_checksum(?1, ?2, free, ?3) FROM"
    " (SELECT ifnull(max(position) + 1, 0) AS free FROM record WHERE key1=?1 AND key2=?2)";
constexpr char AppendAtSql[] =
    "INSERT INTO record VALUES(?1, ?2, ?4, with_checksum(?1, ?2, ?4, ?3))";
constexpr char EndSql[] = "SELECT ifnull(max(position) + 1, 0) FROM record"
                          " WHERE key1=?1 AND key2=?2";
constexpr char ClearSql[] = "DELETE FROM record WHERE key1=?1 AND key2=?2";
constexpr char SchemaVersionSql[] = "PRAGMA user_version";
constexpr char UpgradeSql[] = "UPDATE record SET data = with_checksum(key1, key2, position, data);"
                              "PRAGMA user_version = 2";
static_assert(ZobSchemaVersion == 2);
} // namespace

RecordTable::RecordTable(sqlite3* connection)
    : m_connection(connection)
    , m_rewrite(connection)
{
}

int RecordTable::stepTo(KeyPair pair, int position)
{
    if (pair != m_walkPair || position != m_walkPosition + 1) {
        stopWalk();
        if (const int code = settle(); code != SQLITE_DONE)
            return code;
        m_get.start(m_connection, GetSql, pair.first, pair.second);
        m_get.bind(3, position);
        m_walkPair = pair;
    }
    m_walkPosition = position;
    const int code = m_get.step();
    // Another program may have upgraded the file. While the statement is running, no other program
    // can upgrade it.
    return code == SQLITE_ROW && !m_hasChecksums ? findVersion() : code;
}

int RecordTable::findVersion()
{
    m_version.prepare(m_connection, SchemaVersionSql);
    const int code = m_version.step();
    if (code == SQLITE_ROW)
        m_hasChecksums = m_version.column(0) >= ZobSchemaVersion;
    m_version.done();
    return code;
}

bool RecordTable::isUpgraded()
{
    if (!m_hasChecksums)
        findVersion();
    return m_hasChecksums;
}

int RecordTable::upgrade()
{
    if (isUpgraded())
        return SQLITE_OK;
    stopWalk();
    const int done = sqlite3_exec(m_connection, UpgradeSql, nullptr, nullptr, nullptr);
    m_hasChecksums = done == SQLITE_OK;
    return done;
}

cd_error_t RecordTable::deliver(void* record, int* length) const
{
    int stored = 0;
    const void* bytes = m_get.columnBytes(0, &stored);
    if (m_hasChecksums) {
        if (!hasChecksum(m_walkPair, m_walkPosition, bytes, stored))
            return VKD_ZOB_DAMAGED;
        stored -= ChecksumBytes;
    }
    const cd_error_t status = stored > *length ? VKD_ZOB_CUT : VKD_ZOB_OK;
    *length = std::min(stored, *length);
    if (*length > 0)
        std::memcpy(record, bytes, size_t(*length));
    return status;
}

void RecordTable::stopWalk()
{
    m_get.done();
    m_walkPosition = NoPosition;
}

int RecordTable::findAny(KeyPair pair)
{
    m_any.start(m_connection, AnySql, pair.first, pair.second);
    const int code = m_any.step();
    m_any.done();
    return code;
}

int RecordTable::findNext(KeyPair* pair)
{
    if (const int settled = settle(); settled != SQLITE_DONE)
        return settled;
    m_next.start(m_connection, NextSql, pair->first, pair->second);
    const int code = m_next.step();
    if (code == SQLITE_ROW)
        *pair = {m_next.column(0), m_next.column(1)};
    m_next.done();
    return code;
}

int RecordTable::clear(KeyPair pair)
{
    m_clear.start(m_connection, ClearSql, pair.first, pair.second);
    return m_clear.run();
}

int RecordTable::writeFirst(KeyPair pair, const void* record, int length)
{
    if (const int settled = settle(); settled != SQLITE_DONE)
        return settled;
    m_ends.erase(pair);
    m_first.start(m_connection, FirstSql, pair.first, pair.second);
    return m_first.run(record, length);
}

int RecordTable::append(KeyPair pair, const void* record, int length)
{
    m_append.start(m_connection, AppendSql, pair.first, pair.second);
    return m_append.run(record, length);
}

int RecordTable::clearInside(KeyPair pair)
{
    if (const int settled = settle(); settled != SQLITE_DONE)
        return settled;
    int end = 0;
    if (const int code = findEnd(pair, &end); code != SQLITE_ROW)
        return code;
    m_rewrite.begin(pair, end);
    m_ends[pair] = 0;
    return SQLITE_DONE;
}

int RecordTable::settle()
{
    return m_rewrite.isActive() ? m_rewrite.finish() : SQLITE_DONE;
}

void RecordTable::rolledBack()
{
    m_hasChecksums = false;
    m_rewrite.drop();
}

int RecordTable::appendInside(KeyPair pair, const void* record, int length)
{
    const bool overwrites = m_rewrite.covers(pair);
    if (const int settled = overwrites ? SQLITE_DONE : settle(); settled != SQLITE_DONE)
        return settled;
    auto end = m_ends.find(pair);
    if (end == m_ends.end()) {
        int position = 0;
        const int code = findEnd(pair, &position);
        if (code != SQLITE_ROW)
            return code;
        end = m_ends.emplace(pair, position).first;
    }
    const int position = end->second++;
    if (overwrites)
        return m_rewrite.append(record, length);
    m_appendAt.start(m_connection, AppendAtSql, pair.first, pair.second);
    m_appendAt.bind(4, position);
    return m_appendAt.run(record, length);
}

int RecordTable::findEnd(KeyPair pair, int* position)
{
    m_end.start(m_connection, EndSql, pair.first, pair.second);
    const int code = m_end.step();
    if (code == SQLITE_ROW)
        *position = m_end.column(0);
    m_end.done();
    return code;
}
