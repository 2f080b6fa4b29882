#pragma once

#include "RecordTable.h"
#include "vkd_zob.h"
#include "ZobConnection.h"
#include "ZobTransactions.h"

#include <QString>

#include <memory>

/// One open store: an SQLite file with a rollback journal, or a store in memory. It joins the
/// connection, the records and the transactions to the operations of the ZOB; the list of open
/// stores is kept by vkd_zob.cpp.
class ZobDatabase
{
public:
    /// Each of the three gives null and a status, after its log line, if there is no usable store.
    static std::unique_ptr<ZobDatabase> open(const QString& path, cd_error_t* status,
                                             const VkdGoOn& goOn);
    static std::unique_ptr<ZobDatabase> create(const QString& path, cd_error_t* status);
    static std::unique_ptr<ZobDatabase> inMemory(cd_error_t* status);

    cd_error_t get(int key1, int key2, void* record, int* length, int position);
    cd_error_t put(int key1, int key2, const void* record, int length, int position);
    /// Moves the pair to the first one in use from there on, or to -1, -1.
    void firstPairFrom(int* key1, int* key2);
    ZobTransactions& transactions() { return m_transactions; }

private:
    explicit ZobDatabase(std::unique_ptr<ZobConnection> connection);
    cd_error_t statusAfterEnd(RecordTable::KeyPair pair);
    cd_error_t failInside(int sqliteCode, const char* action);

    std::unique_ptr<ZobConnection> m_connection; // outlives the statements of the table
    RecordTable m_table;
    ZobTransactions m_transactions;
};
