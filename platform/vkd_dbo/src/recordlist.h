#pragma once

#include "modelkeys.h"
#include "recordfields.h"

#include <vkd_progress.h>
#include <vkd_zob.h>

#include <QVector>

#include <functional>

namespace vkd {
namespace dbo {

// Functions with a parameter `steps` count each record as a step and stop on cancellation.

/// Replaces the records of the key pair. Returns true if the store accepted all records.
bool putRecords(ZobHandle project, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps = nullptr);

/// Reads one record of any length. Returns the store's status code. If it is not VKD_ZOB_OK,
/// `record` is empty.
cd_error_t getRecord(ZobHandle project, KeyPair pair, int position, QByteArray* record);

/// Calls `visit` for each record of the key pair in order; all records are read from one state of
/// the project. Returns OK if all records were visited, or VKD_ZOB_CANCELLED on cancellation.
VkdStatus forEachRecord(ZobHandle project, KeyPair pair,
                        const std::function<void(const QByteArray&)>& visit,
                        VkdSteps* steps = nullptr);

/// Logs and returns a failure with the code VKD_ZOB_DAMAGED. Call this if a record is too short for
/// its fields.
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

/// Appends the items of all undamaged records of the key pair. Returns the failure of the store if
/// there is one, otherwise the failure for the first damaged record.
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

/// Returns whether it makes sense to read other lists after this status. Damage affects only part
/// of a project.
inline bool mayContinue(const VkdStatus& status)
{
    return status.isOk() || status.code == VKD_ZOB_DAMAGED;
}

} // namespace dbo
} // namespace vkd
