#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"
#include "ZobHandle.h"

#include <memory>

class ZobDatabase;

/// A change of a project that is stored completely or not at all. It begins with the construction.
/// Until it ends, no other program can change the project, and reads include the records that were
/// put. Without commit(), nothing is stored.
///
/// Overlapping transactions and taken key pairs are parts of one change, in any order: the end of
/// the last part stores it. The change is rolled back if a part ended without commit() or any
/// operation in it failed, even a read.
class VKD_Q_EXPORT ZobTransaction
{
public:
    /// Begins a transaction of the project. Waits for another program that is changing the project,
    /// at most as long as setting 201 says, but not while a ZobSnapshot of this program exists.
    explicit ZobTransaction(ZobHandle project);
    ~ZobTransaction();
    ZobTransaction(const ZobTransaction&) = delete;
    ZobTransaction& operator=(const ZobTransaction&) = delete;

    /// Returns OK while no operation failed, otherwise the first failure of the change; after the
    /// end, the result. A transaction that could not begin refuses all puts.
    VkdStatus status() const;
    /// Ends the transaction. Returns OK if the change is stored or, while other parts are open, if
    /// no operation has failed so far. Otherwise returns why nothing is stored. Further calls
    /// return the same result.
    VkdStatus commit();
    /// Ends the transaction and rolls back the change. Returns the first failure of the change, or
    /// VKD_ZOB_CANCELLED if there was none.
    VkdStatus rollback();

private:
    VkdStatus end(bool isWhole);

    ZobHandle m_project;
    VkdStatus m_result;                 // valid after the end
    std::weak_ptr<ZobDatabase> m_store; // expires when the project is closed
    bool m_isOpen = false;
};
