#pragma once

#include "file/OutsideChanges.h"
#include "file/RecordTable.h"
#include "file/ZobConnection.h"
#include "store/ZobTransactions.h"
#include "vkd_zob.h"

#include <memory>

/// One open store: an SQLite file with a rollback journal, or an in-memory database. It implements
/// the operations of the ZOB on top of the connection, the record table and the transactions.
/// openStores.cpp contains the list of open stores.
class ZobDatabase : public std::enable_shared_from_this<ZobDatabase>
{
public:
    /// Takes ownership of an open connection.
    explicit ZobDatabase(std::unique_ptr<ZobConnection> connection);

    cd_error_t get(int key1, int key2, void* record, int* length, int position);
    cd_error_t put(int key1, int key2, const void* record, int length, int position);
    /// Replaces the pair with the first used pair that is not less than it, or with -1, -1 if there
    /// is none.
    void firstPairFrom(int* key1, int* key2);
    /// Reports that an argument is out of range and returns the code of the failure.
    cd_error_t refuseCall(ZobAction action);
    ZobTransactions& transactions() { return m_transactions; }
    OutsideChanges& outsideChanges() { return m_outsideChanges; }
    VkdStatus copy(const VkdZobTake& take);
    /// Returns OK if no operation has failed.
    const VkdStatus& lastFailure() const { return m_connection->lastFailure(); }

private:
    cd_error_t statusAfterEnd(RecordTable::KeyPair pair);
    cd_error_t deliver(void* record, int* length);
    int clear(RecordTable::KeyPair pair);
    int upgrade();
    cd_error_t failInside(int sqliteCode, ZobAction action);

    std::unique_ptr<ZobConnection> m_connection; // declared first to outlive the statements
    RecordTable m_table;
    ZobTransactions m_transactions;
    OutsideChanges m_outsideChanges;
};
