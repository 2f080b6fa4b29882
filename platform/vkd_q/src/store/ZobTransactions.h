#pragma once

#include "file/RecordTable.h"
#include "file/Statement.h"
#include "vkd_status.h"
#include "vkd_zob.h"

#include <set>

class ZobConnection;

/// The snapshots and changes of a store. It counts readers and writers, so that none of them ends
/// the snapshot or transaction of another. The operations log their failures.
class ZobTransactions
{
public:
    using KeyPair = RecordTable::KeyPair;

    /// Both arguments must outlive the object.
    ZobTransactions(ZobConnection& connection, RecordTable& table);

    /// Begins or ends a read pass. A pass reads a sequence record by record from one state of the
    /// file. It lasts until the sequence ends or is released, or until a record is written.
    VkdStatus beginPass(KeyPair pair);
    void endPass(KeyPair pair);
    void endPasses();
    /// Begins or ends a snapshot, which reads one state of the file until endSnapshot(). Call
    /// endSnapshot() only if the snapshot has begun successfully.
    VkdStatus beginSnapshot();
    void endSnapshot();
    /// Returns whether a pass or a snapshot prevents other programs from storing changes.
    bool isReading() const { return m_isReading; }

    VkdStatus take(KeyPair pair);
    void release(KeyPair pair);
    /// Begins or ends a transaction, which is part of the change like a locked pair. A refused
    /// transaction must also be ended. An incomplete transaction rolls back the change. end()
    /// returns changeStatus(), or the result of the change if this was its last part.
    VkdStatus begin();
    VkdStatus end(bool isWhole);
    /// Returns whether records are currently stored only at the end of a change. Returns false if
    /// the change could not begin.
    bool isChanging() const { return m_isChanging; }
    /// Returns the first failure since the change began.
    const VkdStatus& changeStatus() const { return m_changeStatus; }
    /// Marks the current change as failed, if there is one, and returns the code of the status.
    cd_error_t spoilChange(const VkdStatus& status);
    /// Returns the result of the last change.
    const VkdStatus& endOfChange() const { return m_endOfChange; }
    /// Ends all snapshots and passes, and rolls back unstored changes. Returns the first failure of
    /// all changes. The store must not be used afterwards.
    VkdStatus finish();

private:
    VkdStatus hold();
    void letGo();
    bool hasChange() const { return m_parts > 0 || !m_taken.empty(); }
    VkdStatus joinChange();
    VkdStatus beginChange();
    void dropChange();
    void storeOrDrop();
    VkdStatus commit();
    void rememberEnd(const VkdStatus& status);

    ZobConnection& m_connection;
    RecordTable& m_table;
    Statement m_hold; // while it runs, other programs cannot store changes
    bool m_isReading = false;
    int m_snapshots = 0;
    std::set<KeyPair> m_passes;
    int m_parts = 0; // open transactions
    std::set<KeyPair> m_taken;
    bool m_isChanging = false;
    VkdStatus m_changeStatus; // OK if there is no change
    VkdStatus m_endOfChange;
    VkdStatus m_firstFailure; // first failure of all changes so far
};
