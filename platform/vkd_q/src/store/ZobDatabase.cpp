#include "ZobDatabase.h"

#include "ZobStatus.h"

#include <sqlite3.h>

#include <utility>

ZobDatabase::ZobDatabase(std::unique_ptr<ZobConnection> connection)
    : m_connection(std::move(connection))
    , m_table(m_connection->handle())
    , m_transactions(*m_connection, m_table)
{
}

std::unique_ptr<ZobDatabase> ZobDatabase::open(const QString& path, cd_error_t* status,
                                               const VkdGoOn& goOn)
{
    auto connection = std::make_unique<ZobConnection>(path);
    *status = connection->open(goOn);
    return std::unique_ptr<ZobDatabase>(
        *status == VKD_ZOB_OK ? new ZobDatabase(std::move(connection)) : nullptr);
}

std::unique_ptr<ZobDatabase> ZobDatabase::create(const QString& path, cd_error_t* status)
{
    auto connection = std::make_unique<ZobConnection>(path);
    *status = connection->create();
    return std::unique_ptr<ZobDatabase>(
        *status == VKD_ZOB_OK ? new ZobDatabase(std::move(connection)) : nullptr);
}

std::unique_ptr<ZobDatabase> ZobDatabase::inMemory(cd_error_t* status)
{
    auto connection = std::make_unique<ZobConnection>(QString());
    *status = connection->openInMemory();
    return std::unique_ptr<ZobDatabase>(
        *status == VKD_ZOB_OK ? new ZobDatabase(std::move(connection)) : nullptr);
}

cd_error_t ZobDatabase::get(int key1, int key2, void* record, int* length, int position)
{
    if (position < 0 || *length < 0)
        return m_transactions.spoilChange(
            reportZob(VKD_ZOB_BAD_CALL, "read", m_connection->path()));
    const RecordTable::KeyPair pair{key1, key2};
    if (position == 0 && !m_transactions.isChanging())
        m_transactions.beginPass(pair);
    const int code = m_table.stepTo(pair, position);
    cd_error_t status = VKD_ZOB_OK;
    if (code == SQLITE_ROW)
        status = m_table.deliver(record, length);
    else
        status = code == SQLITE_DONE ? statusAfterEnd(pair) : failInside(code, "read");
    if (status > VKD_ZOB_CUT)
        m_transactions.endPass(pair);
    // Outside of a pass nobody ends the reading, which would keep the file locked.
    if (status > VKD_ZOB_CUT || (!m_transactions.isPassing() && !m_transactions.isChanging()))
        m_table.stopWalk();
    return status;
}

cd_error_t ZobDatabase::statusAfterEnd(RecordTable::KeyPair pair)
{
    const int code = m_table.findAny(pair);
    if (code == SQLITE_ROW)
        return VKD_ZOB_END;
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_NO_KEY) : failInside(code, "read");
}

/// A failure inside of a taken key pair, even one of reading, may have ended the transaction: what
/// is put from then on would be stored on its own, and what could not be read may be missing from
/// it. So the whole change counts as failed.
cd_error_t ZobDatabase::failInside(int sqliteCode, const char* action)
{
    return m_transactions.spoilChange(m_connection->fail(sqliteCode, action));
}

cd_error_t ZobDatabase::put(int key1, int key2, const void* record, int length, int position)
{
    if (m_transactions.changeStatus() != VKD_ZOB_OK)
        return m_transactions.changeStatus();
    if (length < 0 || position < 0 || position > 1)
        return m_transactions.spoilChange(
            reportZob(VKD_ZOB_BAD_CALL, "write", m_connection->path()));
    m_transactions.endPasses(); // there is none while a pair is taken
    m_table.stopWalk();
    const RecordTable::KeyPair pair{key1, key2};
    int code = SQLITE_OK;
    if (position == 1)
        code = m_transactions.isChanging() ? m_table.appendInside(pair, record, length)
                                           : m_table.append(pair, record, length);
    else
        code = length == 0 ? m_table.clear(pair) : m_table.writeFirst(pair, record, length);
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_OK) : failInside(code, "write");
}

void ZobDatabase::firstPairFrom(int* key1, int* key2)
{
    RecordTable::KeyPair pair{*key1, *key2};
    const int code = m_table.findNext(&pair);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        failInside(code, "search");
    *key1 = code == SQLITE_ROW ? pair.first : -1;
    *key2 = code == SQLITE_ROW ? pair.second : -1;
}
