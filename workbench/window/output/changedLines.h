#pragma once

#include <QStringList>
#include <QVector>

namespace workbench {

/// The numbers, from 0, of the lines of `after` that are not in `before` in this order. Very
/// different long texts count as changed between their common beginning and their common end.
QVector<int> changedLines(const QStringList& before, const QStringList& after);

} // namespace workbench
