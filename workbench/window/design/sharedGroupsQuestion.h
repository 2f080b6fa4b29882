#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// The question before groups are stored that stand in several rows: a line for each of them, with
/// its rows as the user counts them, from 1; of very many the first ones. `groupsOfRows` holds for
/// each row those of its groups that other rows name, too. Empty if there are none.
QString sharedGroupsQuestion(const QVector<QVector<int>>& groupsOfRows);

} // namespace workbench
