#pragma once

#include "VKD_H_GroupKind.h"

#include <QString>
#include <QVector>

#include <vector>

namespace vkd {
namespace h {

/// A group as the dialogs show it.
struct GroupRow
{
    int group = 0; ///< the number, or the packed name
    QString name;  ///< what the user knows it by
    QString title;
    QString contents;
    int elements = 0;
    bool isInModel = true;
    bool hasAreas = true; ///< also of a group that is not in the model
    bool isTaken = false; ///< belongs to another row of the caller
    bool isChecked = false;
};

/// The groups of one kind in the project at this database index, -1 for none, and those that are
/// checked without being in the model; ascending by `group`.
QVector<GroupRow> groupRows(VKD_H_GroupKind kind, int index, const std::vector<int>& checked,
                            const std::vector<int>& usedElsewhere);

} // namespace h
} // namespace vkd
