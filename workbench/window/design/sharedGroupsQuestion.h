#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns the question that is asked before storing groups that are in several rows. It has a line
/// for each such group with its rows, counted from 1; of very many groups, it lists the first ones.
/// `groupsOfRows` has for each row its groups that are also in other rows. Empty without such
/// groups.
QString sharedGroupsQuestion(const QVector<QVector<int>>& groupsOfRows);

} // namespace workbench
