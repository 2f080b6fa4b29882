#pragma once

#include "modelkeys.h"
#include "recordfields.h"

#include <vkd_progress.h>

#include <QVector>

#include <functional>

namespace vkd {
namespace dbo {

// Each record is a step of `steps`, if they are given, and once they are stopped no other follows.

/// Replaces the sequence under the pair; true if the store took all of it.
bool putRecords(int index, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps = nullptr);

/// Hands over each record under the pair, in order, from one state of the project.
void forEachRecord(int index, KeyPair pair, const std::function<void(const QByteArray&)>& visit,
                   VkdSteps* steps = nullptr);

/// The line in the log for a record that is too short for what it should hold.
void reportDamagedRecord(int index, KeyPair pair);

/// Appends the thing of each record under the pair that is sound.
template <typename T>
void readList(int index, KeyPair pair, QVector<T>& things, VkdSteps* steps = nullptr)
{
    const auto add = [&](const QByteArray& bytes) {
        T thing;
        FieldReader reader(bytes);
        fields(reader, thing);
        if (reader.isComplete())
            things.append(thing);
        else
            reportDamagedRecord(index, pair);
    };
    forEachRecord(index, pair, add, steps);
}

} // namespace dbo
} // namespace vkd
