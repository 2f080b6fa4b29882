#pragma once

#include "file/OutsideChanges.h"
#include "file/RecordTable.h"
#include "file/ZobConnection.h"
#include "store/ZobTransactions.h"
#include "vkd_zob.h"

#include <memory>

/// One open store: an SQLite file with a rollback journal, or a store in memory. It implements the
/// operations of the ZOB with the connection, the records and the transactions. openStores.cpp has
/// the list of open stores.
class ZobDatabase : public std::enable_shared_from_this<ZobDatabase>
{
public:
    /// Takes an open connection.
    explicit ZobDatabase(std::unique_ptr<ZobConnection> connection);

    cd_error_t get(int key1, int key2, void* record, int* length, int position);
    cd_error_t put(int key1, int key2, const void* record, int length, int position);
    /// Sets the pair to the first used one that is not less, or to -1, -1.
    void firstPairFrom(int* key1, int* key2);
    /// Fails because an argument is out of range.
    cd_error_t refuseCall(ZobAction action);
    ZobTransactions& transactions() { return m_transactions; }
    OutsideChanges& outsideChanges() { return m_outsideChanges; }
    VkdStatus copy(const VkdZobTake& take);
    /// Returns OK if no operation failed.
    const VkdStatus& lastFailure() const { return m_connection->lastFailure(); }

private:
    cd_error_t statusAfterEnd(RecordTable::KeyPair pair);
    cd_error_t deliver(void* record, int* length);
    int upgrade();
    cd_error_t failInside(int sqliteCode, ZobAction action);

    std::unique_ptr<ZobConnection> m_connection; // first member: outlives the statements
    RecordTable m_table;
    ZobTransactions m_transactions;
    OutsideChanges m_outsideChanges;
};
