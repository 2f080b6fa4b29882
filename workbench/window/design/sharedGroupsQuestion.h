#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns the question that is asked before storing groups that are in several rows; empty if
/// there are none. It has a line for each such group with its rows, counted from 1; if there are
/// very many groups, it lists only the first ones. `groupsOfRows` contains for each row its groups
/// that are also in other rows.
QString sharedGroupsQuestion(const QVector<QVector<int>>& groupsOfRows);

} // namespace workbench
