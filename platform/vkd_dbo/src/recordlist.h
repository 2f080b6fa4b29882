#pragma once

#include "modelkeys.h"
#include "recordfields.h"

#include <vkd_progress.h>
#include <vkd_zob.h>

#include <QVector>

#include <functional>

namespace vkd {
namespace dbo {

// Each record is a step of `steps`, if they are given, and once they are stopped no other follows.

/// Replaces the sequence under the pair; true if the store took all of it.
bool putRecords(int index, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps = nullptr);

/// Reads one record, whatever its length; what the store answered, and nothing in `record` if that
/// is not VKD_ZOB_OK.
cd_error_t getRecord(int index, KeyPair pair, int position, QByteArray* record);

/// Hands over each record under the pair, in order, from one state of the project; true if it came
/// to the end of them.
bool forEachRecord(int index, KeyPair pair, const std::function<void(const QByteArray&)>& visit,
                   VkdSteps* steps = nullptr);

/// The line in the log for a record that is too short for what it should hold.
void reportDamagedRecord(int index, KeyPair pair);

/// Appends the thing of the record if it is sound.
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

/// Appends the thing of each record under the pair that is sound; true if it came to the end.
template <typename T>
bool readList(int index, KeyPair pair, QVector<T>& things, VkdSteps* steps = nullptr)
{
    const auto add = [&](const QByteArray& record) { addThing(index, pair, record, things); };
    return forEachRecord(index, pair, add, steps);
}

} // namespace dbo
} // namespace vkd
