#pragma once

#include "RecordTable.h"
#include "vkd_zob.h"
#include "ZobConnection.h"
#include "ZobTransactions.h"

#include <memory>

/// One open store: an SQLite file with a rollback journal, or a store in memory. It joins the
/// connection, the records and the transactions to the operations of the ZOB; the list of open
/// stores is kept by vkd_zob.cpp.
class ZobDatabase : public std::enable_shared_from_this<ZobDatabase>
{
public:
    /// Of a connection that is open.
    explicit ZobDatabase(std::unique_ptr<ZobConnection> connection);

    cd_error_t get(int key1, int key2, void* record, int* length, int position);
    cd_error_t put(int key1, int key2, const void* record, int length, int position);
    /// Moves the pair to the first one in use from there on, or to -1, -1.
    void firstPairFrom(int* key1, int* key2);
    /// The failure of a call with an argument out of range.
    cd_error_t refuseCall(ZobAction action);
    ZobTransactions& transactions() { return m_transactions; }
    /// OK if nothing has failed yet.
    const VkdStatus& lastFailure() const { return m_connection->lastFailure(); }

private:
    cd_error_t statusAfterEnd(RecordTable::KeyPair pair);
    cd_error_t failInside(int sqliteCode, ZobAction action);

    std::unique_ptr<ZobConnection> m_connection; // outlives the statements of the table
    RecordTable m_table;
    ZobTransactions m_transactions;
};
