#pragma once

#include "RecordTable.h"
#include "vkd_zob.h"

#include <set>

class ZobConnection;

/// The state of reading and writing of a store: what is read from one state of the file, and what
/// is stored or dropped together. Its operations write the log lines of what fails.
class ZobTransactions
{
public:
    using KeyPair = RecordTable::KeyPair;

    /// Both outlive the object.
    ZobTransactions(ZobConnection& connection, RecordTable& table);

    void beginPass(KeyPair pair);
    void endPass(KeyPair pair);
    void endPasses();
    bool isPassing() const { return !m_passes.empty(); }

    cd_error_t take(KeyPair pair);
    void release(KeyPair pair);
    /// Whether what is put now is stored with a later release. False as well if the first pair was
    /// refused.
    bool isChanging() const { return m_isChanging; }
    /// The first failure since the first pair was taken.
    cd_error_t changeStatus() const;
    /// Lets the change fail, if there is one, and passes the status on.
    cd_error_t spoilChange(cd_error_t status);
    /// How the last change ended.
    cd_error_t endOfChange() const { return m_endOfChange; }
    /// Drops what is still taken; gives the first failure of a change.
    cd_error_t finish();

private:
    void endReading();
    cd_error_t beginChange();
    void storeOrDrop();
    void rememberEnd(cd_error_t status);

    ZobConnection& m_connection;
    RecordTable& m_table;
    std::set<KeyPair> m_passes; // being read from one state of the file
    std::set<KeyPair> m_taken;
    bool m_isChanging = false;
    cd_error_t m_changeStatus = VKD_ZOB_OK;
    cd_error_t m_endOfChange = VKD_ZOB_OK;
    cd_error_t m_firstFailure = VKD_ZOB_OK; // of all changes
};
