#include "store/ZobDatabase.h"

#include "file/openFile.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

#include <utility>

ZobDatabase::ZobDatabase(std::unique_ptr<ZobConnection> connection)
    : m_connection(std::move(connection))
    , m_table(m_connection->handle())
    , m_transactions(*m_connection, m_table)
    , m_outsideChanges(*m_connection)
{
}

cd_error_t ZobDatabase::get(int key1, int key2, void* record, int* length, int position)
{
    if (position < 0 || *length < 0)
        return refuseCall(ZobAction::Read);
    const RecordTable::KeyPair pair{key1, key2};
    if (position == 0 && !m_transactions.isChanging())
        if (const VkdStatus held = m_transactions.beginPass(pair); !held.isOk())
            return held.code;
    const int code = m_table.stepTo(pair, position);
    cd_error_t status = VKD_ZOB_OK;
    if (code == SQLITE_ROW)
        status = deliver(record, length);
    else
        status = code == SQLITE_DONE ? statusAfterEnd(pair) : failInside(code, ZobAction::Read);
    if (status > VKD_ZOB_CUT)
        m_transactions.endPass(pair);
    // Without a read pass or a change, no later call would end the iteration, which keeps the file
    // locked.
    if (status > VKD_ZOB_CUT || (!m_transactions.isReading() && !m_transactions.isChanging()))
        m_table.stopWalk();
    return status;
}

cd_error_t ZobDatabase::deliver(void* record, int* length)
{
    const cd_error_t status = m_table.deliver(record, length);
    if (status == VKD_ZOB_DAMAGED)
        m_transactions.spoilChange(m_connection->fail(
            VKD_ZOB_DAMAGED, ZobAction::Read, QStringLiteral("the checksum of a record is wrong")));
    return status;
}

cd_error_t ZobDatabase::statusAfterEnd(RecordTable::KeyPair pair)
{
    const int code = m_table.findAny(pair);
    if (code == SQLITE_ROW)
        return VKD_ZOB_END;
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_NO_KEY) : failInside(code, ZobAction::Read);
}

/// Makes the whole change fail. A failure within a change, even a read failure, may have ended the
/// transaction. Later writes would be stored separately and might lack data that could not be read.
cd_error_t ZobDatabase::failInside(int sqliteCode, ZobAction action)
{
    m_table.rolledBack(); // SQLite may already have rolled back
    return m_transactions.spoilChange(m_connection->fail(sqliteCode, action));
}

cd_error_t ZobDatabase::refuseCall(ZobAction action)
{
    return m_transactions.spoilChange(m_connection->fail(VKD_ZOB_BAD_CALL, action));
}

cd_error_t ZobDatabase::put(int key1, int key2, const void* record, int length, int position)
{
    if (!m_transactions.changeStatus().isOk())
        return m_transactions.changeStatus().code;
    if (length < 0 || length > ZobMaxRecordBytes || position < 0 || position > 1)
        return refuseCall(ZobAction::Write);
    if (!m_transactions.isChanging() && m_connection->isAway())
        return m_connection->fail(VKD_ZOB_MOVED, ZobAction::Write).code;
    m_transactions.endPasses(); // within a change there are no read passes
    m_table.stopWalk();
    if (const int code = upgrade(); code != SQLITE_OK)
        return failInside(code, ZobAction::Write);
    const RecordTable::KeyPair pair{key1, key2};
    int code = SQLITE_OK;
    if (position == 1)
        code = m_transactions.isChanging() ? m_table.appendInside(pair, record, length)
                                           : m_table.append(pair, record, length);
    else
        code = length == 0 ? clear(pair) : m_table.writeFirst(pair, record, length);
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_OK) : failInside(code, ZobAction::Write);
}

int ZobDatabase::clear(RecordTable::KeyPair pair)
{
    return m_transactions.isChanging() ? m_table.clearInside(pair) : m_table.clear(pair);
}

/// Upgrades a file of an older version. Outside a change, the upgrade has its own transaction.
int ZobDatabase::upgrade()
{
    if (m_transactions.isChanging() || m_table.isUpgraded())
        return m_table.upgrade();
    int code = sqlite3_exec(m_connection->handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    if (code == SQLITE_OK)
        code = m_table.upgrade();
    if (code == SQLITE_OK)
        code = sqlite3_exec(m_connection->handle(), "COMMIT", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK && m_connection->isInTransaction()) {
        m_connection->execute("ROLLBACK", ZobAction::UndoChanges);
        m_table.rolledBack();
    }
    return code;
}

void ZobDatabase::firstPairFrom(int* key1, int* key2)
{
    RecordTable::KeyPair pair{*key1, *key2};
    const VkdStatus held = m_transactions.beginSnapshot();
    const int code = held.isOk() ? m_table.findNext(&pair) : SQLITE_DONE;
    if (held.isOk())
        m_transactions.endSnapshot();
    else
        m_transactions.spoilChange(held);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        failInside(code, ZobAction::Search);
    *key1 = code == SQLITE_ROW ? pair.first : -1;
    *key2 = code == SQLITE_ROW ? pair.second : -1;
}

VkdStatus ZobDatabase::copy(const VkdZobTake& take)
{
    if (m_transactions.isChanging())
        return m_connection->fail(VKD_ZOB_BAD_CALL, ZobAction::Read);
    VkdStatus status = m_transactions.beginSnapshot();
    if (!status.isOk())
        return status;
    const VkdZobStatus code = copyFile(m_connection->handle(), take);
    if (code == VKD_ZOB_CANCELLED)
        status = zobFailure(code, ZobAction::Read, m_connection->path());
    else if (code != VKD_ZOB_OK)
        status = m_connection->fail(SQLITE_IOERR, ZobAction::Read);
    m_transactions.endSnapshot();
    return status;
}
