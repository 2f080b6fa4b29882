#include "ZobTransactions.h"

#include "ZobConnection.h"
#include "ZobStatus.h"

#include <utility>

ZobTransactions::ZobTransactions(ZobConnection& connection, RecordTable& table)
    : m_connection(connection)
    , m_table(table)
{
}

/// The first statement of a transaction for reading takes the shared lock, which lasts to its end.
void ZobTransactions::beginPass(KeyPair pair)
{
    if (m_passes.empty() && m_connection.execute("BEGIN", "read") != VKD_ZOB_OK)
        return;
    m_passes.insert(pair);
}

void ZobTransactions::endPass(KeyPair pair)
{
    if (m_passes.erase(pair) && m_passes.empty())
        endReading();
}

void ZobTransactions::endPasses()
{
    if (m_passes.empty())
        return;
    m_passes.clear();
    endReading();
}

void ZobTransactions::endReading()
{
    m_table.stopWalk();
    if (m_connection.isInTransaction() &&
        m_connection.execute("COMMIT", "finish reading") != VKD_ZOB_OK)
        m_connection.execute("ROLLBACK", "finish reading");
}

cd_error_t ZobTransactions::take(KeyPair pair)
{
    endPasses();
    if (m_taken.empty()) {
        m_changeStatus = beginChange();
        m_isChanging = m_changeStatus == VKD_ZOB_OK;
    }
    m_taken.insert(pair); // a refused pair, too: the change fails until the last release
    return m_changeStatus;
}

cd_error_t ZobTransactions::beginChange()
{
    m_table.forgetEnds();
    // SQLite would begin, and refuse only what is written.
    if (m_connection.isReadOnly())
        return reportZob(VKD_ZOB_READ_ONLY, "take the lock of", m_connection.path());
    return m_connection.execute("BEGIN IMMEDIATE", "take the lock of");
}

void ZobTransactions::release(KeyPair pair)
{
    endPass(pair);
    if (m_taken.erase(pair) && m_taken.empty()) {
        if (m_isChanging)
            m_table.stopWalk();
        storeOrDrop();
    }
}

void ZobTransactions::storeOrDrop()
{
    cd_error_t status = m_changeStatus; // whose reason has been said
    if (status == VKD_ZOB_OK)
        status = m_connection.execute("COMMIT", "store the changes in");
    const bool wasChanging = std::exchange(m_isChanging, false);
    if (status == VKD_ZOB_OK) {
        m_endOfChange = VKD_ZOB_OK;
        return;
    }
    // Some failures have rolled back already; what the old content was, it is again.
    if (wasChanging && m_connection.isInTransaction())
        m_connection.execute("ROLLBACK", "undo the changes in");
    rememberEnd(status);
}

void ZobTransactions::rememberEnd(cd_error_t status)
{
    m_endOfChange = status;
    if (m_firstFailure == VKD_ZOB_OK && status != VKD_ZOB_CANCELLED) // which was wanted
        m_firstFailure = status;
}

cd_error_t ZobTransactions::changeStatus() const
{
    return m_taken.empty() ? cd_error_t(VKD_ZOB_OK) : m_changeStatus;
}

cd_error_t ZobTransactions::spoilChange(cd_error_t status)
{
    if (!m_taken.empty() && m_changeStatus == VKD_ZOB_OK)
        m_changeStatus = status;
    return status;
}

cd_error_t ZobTransactions::finish()
{
    endPasses();
    m_table.stopWalk();
    if (m_isChanging && m_connection.isInTransaction())
        m_connection.execute("ROLLBACK", "undo the changes in");
    m_isChanging = false;
    m_taken.clear();
    return m_firstFailure;
}
