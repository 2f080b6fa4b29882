#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"
#include "ZobHandle.h"

#include <memory>

class ZobDatabase;

/// A consistent state of a project for reading. While the object exists, other programs cannot
/// store changes in the project; changes by this program are visible when they are put. The store
/// counts its readers: snapshots may overlap with each other and with transactions in any order,
/// and neither the end of a sequence nor vkd_zob_free_ex() ends a snapshot. Closing the project
/// ends it.
///
/// If a transaction begins while a snapshot of this program exists and another program is changing
/// the project, the transaction does not wait but is refused with VKD_ZOB_LOCKED. Otherwise both
/// programs would wait for each other.
class VKD_Q_EXPORT ZobSnapshot
{
public:
    /// Begins a snapshot of the project. Waits for another program that is storing, at most as long
    /// as setting 201 says.
    explicit ZobSnapshot(ZobHandle project);
    ~ZobSnapshot();
    ZobSnapshot(const ZobSnapshot&) = delete;
    ZobSnapshot& operator=(const ZobSnapshot&) = delete;

    /// Returns OK, or why the snapshot could not begin, usually VKD_ZOB_LOCKED. Reads may then
    /// return data from different states.
    const VkdStatus& status() const { return m_status; }

private:
    VkdStatus m_status;
    std::weak_ptr<ZobDatabase> m_store; // expires when the project is closed
};
