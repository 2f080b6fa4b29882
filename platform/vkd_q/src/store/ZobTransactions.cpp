#include "store/ZobTransactions.h"

#include "file/ZobConnection.h"

#include <sqlite3.h>

#include <utility>

namespace {
// This query returns a row in every store.
constexpr char HoldSql[] = "SELECT 1 FROM sqlite_master";
} // namespace

ZobTransactions::ZobTransactions(ZobConnection& connection, RecordTable& table)
    : m_connection(connection)
    , m_table(table)
{
}

VkdStatus ZobTransactions::beginPass(KeyPair pair)
{
    const VkdStatus status = hold();
    if (status.isOk())
        m_passes.insert(pair);
    return status;
}

void ZobTransactions::endPass(KeyPair pair)
{
    m_passes.erase(pair);
    letGo();
}

void ZobTransactions::endPasses()
{
    m_passes.clear();
    letGo();
}

VkdStatus ZobTransactions::beginSnapshot()
{
    const VkdStatus status = hold();
    if (status.isOk())
        ++m_snapshots;
    return status;
}

void ZobTransactions::endSnapshot()
{
    --m_snapshots;
    letGo();
}

/// Locks the file against changes by other programs. A running statement keeps the shared lock even
/// after a change on this connection ends. A read transaction would end with that change, and other
/// programs could store changes before the next one begins.
VkdStatus ZobTransactions::hold()
{
    if (m_isReading)
        return {};
    // Another file may have replaced the open file. SQLite would mistake the other file's journal
    // for an interrupted change to the open file and roll it back there.
    if (m_connection.isAway() && m_connection.hasJournal())
        return m_connection.fail(VKD_ZOB_MOVED, ZobAction::Read);
    m_hold.prepare(m_connection.handle(), HoldSql);
    const int code = m_hold.step();
    m_isReading = code == SQLITE_ROW;
    if (m_isReading)
        return {};
    const VkdStatus failure = m_connection.fail(code, ZobAction::Read);
    m_hold.done();
    return failure;
}

void ZobTransactions::letGo()
{
    if (!m_isReading || m_snapshots > 0 || !m_passes.empty())
        return;
    m_isReading = false;
    if (!m_isChanging)
        m_table.stopWalk();
    m_hold.done();
}

VkdStatus ZobTransactions::take(KeyPair pair)
{
    const VkdStatus status = joinChange();
    m_taken.insert(pair); // even if refused, because the change stays failed until the last release
    return status;
}

VkdStatus ZobTransactions::begin()
{
    const VkdStatus status = joinChange();
    ++m_parts;
    return status;
}

VkdStatus ZobTransactions::joinChange()
{
    endPasses();
    if (!hasChange())
        m_changeStatus = beginChange();
    return m_changeStatus;
}

VkdStatus ZobTransactions::beginChange()
{
    m_table.forgetEnds();
    // In both cases SQLite would begin the transaction and only then refuse the writes.
    if (m_connection.isAway())
        return m_connection.fail(VKD_ZOB_MOVED, ZobAction::TakeLock);
    if (m_connection.isReadOnly())
        return m_connection.fail(VKD_ZOB_READ_ONLY, ZobAction::TakeLock);
    const VkdStatus status = m_connection.execute("BEGIN IMMEDIATE", ZobAction::TakeLock);
    m_isChanging = status.isOk();
    return status;
}

void ZobTransactions::release(KeyPair pair)
{
    endPass(pair);
    if (m_taken.erase(pair) && !hasChange())
        storeOrDrop();
}

VkdStatus ZobTransactions::end(bool isWhole)
{
    if (!isWhole)
        dropChange();
    --m_parts;
    if (hasChange())
        return m_changeStatus;
    storeOrDrop();
    return m_endOfChange;
}

void ZobTransactions::storeOrDrop()
{
    if (m_isChanging)
        m_table.stopWalk();
    VkdStatus status = std::exchange(m_changeStatus, VkdStatus());
    if (status.isOk())
        status = commit();
    const bool wasChanging = std::exchange(m_isChanging, false);
    // SQLite itself rolls back after some failures.
    if (!status.isOk() && wasChanging && m_connection.isInTransaction())
        m_connection.execute("ROLLBACK", ZobAction::UndoChanges);
    if (!status.isOk())
        m_table.rolledBack();
    rememberEnd(status);
}

VkdStatus ZobTransactions::commit()
{
    const int code = m_table.settle();
    return code == SQLITE_DONE ? m_connection.execute("COMMIT", ZobAction::StoreChanges)
                               : m_connection.fail(code, ZobAction::StoreChanges);
}

void ZobTransactions::rememberEnd(const VkdStatus& status)
{
    m_endOfChange = status;
    // A cancellation is not a failure.
    const bool isFailure = !status.isOk() && status.code != VKD_ZOB_CANCELLED;
    if (isFailure && m_firstFailure.isOk())
        m_firstFailure = status;
}

cd_error_t ZobTransactions::spoilChange(const VkdStatus& status)
{
    if (hasChange() && m_changeStatus.isOk())
        m_changeStatus = status;
    return status.code;
}

void ZobTransactions::dropChange()
{
    spoilChange(zobFailure(VKD_ZOB_CANCELLED, ZobAction::StoreChanges, m_connection.path()));
}

VkdStatus ZobTransactions::finish()
{
    m_snapshots = 0;
    endPasses();
    m_table.stopWalk();
    if (m_isChanging && m_connection.isInTransaction())
        m_connection.execute("ROLLBACK", ZobAction::UndoChanges);
    return m_firstFailure;
}
