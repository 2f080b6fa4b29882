#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"

#include <memory>

class ZobDatabase;

/// A change of a project, of which all is stored or nothing. It begins with the object; until its
/// end no other program can change the project, and what is read in it includes what was put in it.
/// Without commit(), nothing is stored.
///
/// Transactions and taken key pairs that overlap are parts of one change, in any order: the end of
/// the last part stores it. It is dropped if a part ended without commit() or anything in it
/// failed, a read too.
class VKD_Q_EXPORT ZobTransaction
{
public:
    /// Of the project at this database index. Another program that is changing the project is
    /// waited for, at most as long as setting 201 says, but not while a ZobSnapshot of this program
    /// lives.
    explicit ZobTransaction(int index);
    ~ZobTransaction();
    ZobTransaction(const ZobTransaction&) = delete;
    ZobTransaction& operator=(const ZobTransaction&) = delete;

    /// OK as long as all went well, otherwise the first failure of the change; after the end its
    /// result. A transaction that could not begin refuses all puts.
    VkdStatus status() const;
    /// Ends the transaction: OK if the change is stored, or, where other parts of it are open, if
    /// it is sound so far. Otherwise why nothing is stored. Further calls repeat the result.
    VkdStatus commit();
    /// Ends the transaction and drops the change: the first failure of the change, or
    /// VKD_ZOB_CANCELLED if there was none.
    VkdStatus rollback();

private:
    VkdStatus end(bool isWhole);

    int m_index;
    VkdStatus m_result;                 // once it has ended
    std::weak_ptr<ZobDatabase> m_store; // null after the end, gone with the project
    bool m_isOpen = false;
};
