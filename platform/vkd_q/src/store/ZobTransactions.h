#pragma once

#include "RecordTable.h"
#include "Statement.h"
#include "vkd_status.h"
#include "vkd_zob.h"

#include <set>

class ZobConnection;

/// The state of reading and writing of a store: what is read from one state of the file, and what
/// is stored or dropped together. It counts who reads and who writes, so that none of them ends the
/// state of another. Its operations write the log lines of what fails.
class ZobTransactions
{
public:
    using KeyPair = RecordTable::KeyPair;

    /// Both outlive the object.
    ZobTransactions(ZobConnection& connection, RecordTable& table);

    /// A pass reads a sequence record by record and holds the state until the sequence ends, is
    /// released or something is written.
    VkdStatus beginPass(KeyPair pair);
    void endPass(KeyPair pair);
    void endPasses();
    /// A snapshot holds the state until endSnapshot(), to be called only if it could begin.
    VkdStatus beginSnapshot();
    void endSnapshot();
    /// Whether other programs are kept from storing.
    bool isReading() const { return m_isReading; }

    VkdStatus take(KeyPair pair);
    void release(KeyPair pair);
    /// A transaction is a part of the change like a taken pair. A refused one has to end, too. One
    /// that is not whole drops the change. end() answers changeStatus(), or how the change ended if
    /// it was the last part.
    VkdStatus begin();
    VkdStatus end(bool isWhole);
    /// Whether what is put now is stored with the end of a change. False as well if the change
    /// could not begin.
    bool isChanging() const { return m_isChanging; }
    /// The first failure since the change began.
    const VkdStatus& changeStatus() const { return m_changeStatus; }
    /// Lets the change fail, if there is one, and passes the code of the status on.
    cd_error_t spoilChange(const VkdStatus& status);
    /// How the last change ended.
    const VkdStatus& endOfChange() const { return m_endOfChange; }
    /// Ends all of it, and drops what is not stored; gives the first failure of a change.
    VkdStatus finish();

private:
    VkdStatus hold();
    void letGo();
    bool hasChange() const { return m_parts > 0 || !m_taken.empty(); }
    VkdStatus joinChange();
    VkdStatus beginChange();
    void dropChange();
    void storeOrDrop();
    void rememberEnd(const VkdStatus& status);

    ZobConnection& m_connection;
    RecordTable& m_table;
    Statement m_hold; // while it runs, other programs store nothing
    bool m_isReading = false;
    int m_snapshots = 0;
    std::set<KeyPair> m_passes;
    int m_parts = 0; // transactions that are open
    std::set<KeyPair> m_taken;
    bool m_isChanging = false;
    VkdStatus m_changeStatus; // OK while there is no change
    VkdStatus m_endOfChange;
    VkdStatus m_firstFailure; // of all changes
};
