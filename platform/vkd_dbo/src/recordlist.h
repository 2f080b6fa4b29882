#pragma once

#include "modelkeys.h"
#include "recordfields.h"

#include <vkd_progress.h>
#include <vkd_zob.h>

#include <QVector>

#include <functional>

namespace vkd {
namespace dbo {

// Functions with `steps` count each record as a step, and stop when the steps are stopped.

/// Replaces the records under the key pair. Returns true if the store accepted all of them.
bool putRecords(ZobHandle project, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps = nullptr);

/// Reads one record of any length. Returns the store's status; unless it is VKD_ZOB_OK, `record` is
/// empty.
cd_error_t getRecord(ZobHandle project, KeyPair pair, int position, QByteArray* record);

/// Calls `visit` for each record under the key pair in order, from one state of the project.
/// Returns OK if all records were visited, or VKD_ZOB_CANCELLED if the steps were stopped.
VkdStatus forEachRecord(ZobHandle project, KeyPair pair,
                        const std::function<void(const QByteArray&)>& visit,
                        VkdSteps* steps = nullptr);

/// Returns a failure with the code VKD_ZOB_DAMAGED, because a record is too short for its fields,
/// and logs it.
VkdStatus reportDamagedRecord(ZobHandle project, KeyPair pair);

/// Appends the item decoded from the record. Returns VKD_ZOB_DAMAGED if the record is damaged.
template <typename T>
VkdStatus addThing(ZobHandle project, KeyPair pair, const QByteArray& record, QVector<T>& things)
{
    T thing;
    FieldReader reader(record);
    fields(reader, thing);
    if (!reader.isComplete())
        return reportDamagedRecord(project, pair);
    things.append(thing);
    return {};
}

/// Appends the items of all undamaged records under the key pair. Returns the failure of the store,
/// or else that of the first damaged record.
template <typename T>
VkdStatus readList(ZobHandle project, KeyPair pair, QVector<T>& things, VkdSteps* steps = nullptr)
{
    VkdStatus damage;
    const auto add = [&](const QByteArray& record) {
        const VkdStatus added = addThing(project, pair, record, things);
        if (damage.isOk())
            damage = added;
    };
    const VkdStatus read = forEachRecord(project, pair, add, steps);
    return read.isOk() ? damage : read;
}

/// Returns whether reading other lists makes sense after this status. Damage concerns only a part
/// of a project.
inline bool mayContinue(const VkdStatus& status)
{
    return status.isOk() || status.code == VKD_ZOB_DAMAGED;
}

} // namespace dbo
} // namespace vkd
