#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns the question to ask before groups that are in several rows are stored, or an empty
/// string if there are no such groups. The question has a line for each such group with its rows,
/// counted from 1. If there are very many groups, only the first groups are listed. `groupsOfRows`
/// contains, for each row, its groups that are also in other rows.
QString sharedGroupsQuestion(const QVector<QVector<int>>& groupsOfRows);

} // namespace workbench
