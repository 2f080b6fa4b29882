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
bool putRecords(int index, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps = nullptr);

/// Reads one record of any length. Returns the store's status; unless it is VKD_ZOB_OK, `record` is
/// empty.
cd_error_t getRecord(int index, KeyPair pair, int position, QByteArray* record);

/// Calls `visit` for each record under the key pair in order, from one state of the project.
/// Returns true if all records were visited.
bool forEachRecord(int index, KeyPair pair, const std::function<void(const QByteArray&)>& visit,
                   VkdSteps* steps = nullptr);

/// Logs that a record is too short for its fields.
void reportDamagedRecord(int index, KeyPair pair);

/// Appends the item decoded from the record, unless the record is damaged.
template <typename T>
void addThing(int index, KeyPair pair, const QByteArray& record, QVector<T>& things)
{
    T thing;
    FieldReader reader(record);
    fields(reader, thing);
    if (reader.isComplete())
        things.append(thing);
    else
        reportDamagedRecord(index, pair);
}

/// Appends the items of all undamaged records under the key pair. Returns true if all records were
/// read.
template <typename T>
bool readList(int index, KeyPair pair, QVector<T>& things, VkdSteps* steps = nullptr)
{
    const auto add = [&](const QByteArray& record) { addThing(index, pair, record, things); };
    return forEachRecord(index, pair, add, steps);
}

} // namespace dbo
} // namespace vkd
