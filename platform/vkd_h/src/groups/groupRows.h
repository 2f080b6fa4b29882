#pragma once

#include "VKD_H_GroupKind.h"

#include <ZobHandle.h>

#include <QString>
#include <QVector>

#include <vector>

namespace vkd {
namespace h {

/// One row of a group dialog.
struct GroupRow
{
    int group = 0; ///< number or packed name
    QString name;  ///< number or name as displayed
    QString title;
    QString contents;
    int elements = 0;
    bool isInModel = true;
    bool hasAreas = true; ///< also true for a group missing from the model
    bool isTaken = false; ///< belongs to another row of the caller
    bool isChecked = false;
};

/// Returns the groups of one kind, sorted by `group`: all groups of the project, if the handle is
/// not null, plus checked groups that do not exist in the model.
QVector<GroupRow> groupRows(VKD_H_GroupKind kind, ZobHandle project,
                            const std::vector<int>& checked, const std::vector<int>& usedElsewhere);

} // namespace h
} // namespace vkd
