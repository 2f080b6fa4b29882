#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"

#include <memory>

class ZobDatabase;

/// One state of a project to read from. While the object lives, no other program can store a change
/// in the project; changes of this program are seen as they are put. The store counts its readers:
/// snapshots may overlap in any order, also with transactions, and neither the end of a sequence
/// nor vkd_zob_free_ex() ends one. Closing the project does.
///
/// A transaction that begins while a snapshot of this program lives does not wait: if another
/// program is changing the project it is refused with VKD_ZOB_LOCKED at once, since the other
/// program would wait for the end of the snapshot.
class VKD_Q_EXPORT ZobSnapshot
{
public:
    /// Of the project at this database index. Another program that is storing is waited for, at
    /// most as long as setting 201 says.
    explicit ZobSnapshot(int index);
    ~ZobSnapshot();
    ZobSnapshot(const ZobSnapshot&) = delete;
    ZobSnapshot& operator=(const ZobSnapshot&) = delete;

    /// OK, or why there is none: VKD_ZOB_LOCKED above all. What is read then may be of several
    /// states.
    const VkdStatus& status() const { return m_status; }

private:
    VkdStatus m_status;
    std::weak_ptr<ZobDatabase> m_store; // is gone with the project
};
