#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"
#include "ZobHandle.h"

#include <memory>

class ZobDatabase;

/// A consistent read snapshot of a project. While the object exists, other programs cannot store
/// changes to the project. Records written by this program are visible immediately. The store
/// counts its readers, so snapshots may overlap with each other and with transactions in any order.
/// Neither the end of a sequence nor vkd_zob_free_ex() ends a snapshot. Closing the project ends
/// the snapshot.
///
/// If a transaction begins while a snapshot of this program exists and another program is changing
/// the project, the transaction does not wait, but fails with VKD_ZOB_LOCKED. Otherwise both
/// programs would wait for each other.
class VKD_Q_EXPORT ZobSnapshot
{
public:
    /// Begins a snapshot of the project. If another program is storing changes, waits no longer
    /// than the deadline in setting 201.
    explicit ZobSnapshot(ZobHandle project);
    ~ZobSnapshot();
    ZobSnapshot(const ZobSnapshot&) = delete;
    ZobSnapshot& operator=(const ZobSnapshot&) = delete;

    /// Returns OK, or the reason why the snapshot could not begin, usually VKD_ZOB_LOCKED. If it
    /// could not begin, reads may return data from different states of the project.
    const VkdStatus& status() const { return m_status; }

private:
    VkdStatus m_status;
    std::weak_ptr<ZobDatabase> m_store; // expires when the project is closed
};
