#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"
#include "ZobHandle.h"

#include <memory>

class ZobDatabase;

/// An atomic change to a project, which begins on construction. Until it ends, no other program can
/// change the project, and reads include the records written so far. Without commit(), nothing is
/// stored.
///
/// Overlapping transactions and locked key pairs are parts of one change and may end in any order.
/// The change is stored when its last part ends. It is rolled back if any transaction ended without
/// commit() or if any operation during the change failed, even a read.
class VKD_Q_EXPORT ZobTransaction
{
public:
    /// Begins a transaction on the project. If another program is changing the project, waits no
    /// longer than the deadline in setting 201. Does not wait while this program has a ZobSnapshot.
    explicit ZobTransaction(ZobHandle project);
    ~ZobTransaction();
    ZobTransaction(const ZobTransaction&) = delete;
    ZobTransaction& operator=(const ZobTransaction&) = delete;

    /// Returns OK as long as no operation has failed, otherwise the first failure of the change.
    /// After the transaction has ended, returns its result. A transaction that could not begin
    /// refuses all writes.
    VkdStatus status() const;
    /// Ends the transaction. Returns OK if the change is stored or, while other parts are open, if
    /// no operation has failed so far. Otherwise returns the reason why nothing is stored. Further
    /// calls return the same result.
    VkdStatus commit();
    /// Ends the transaction and rolls back the change. Returns the first failure of the change, or
    /// VKD_ZOB_CANCELLED if there was none.
    VkdStatus rollback();

private:
    VkdStatus end(bool isWhole);

    ZobHandle m_project;
    VkdStatus m_result;                 // valid after the transaction has ended
    std::weak_ptr<ZobDatabase> m_store; // expires when the project is closed
    bool m_isOpen = false;
};
