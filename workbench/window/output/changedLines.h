#pragma once

#include <QStringList>
#include <QVector>

namespace workbench {

/// Returns the numbers, from 0, of the lines of `after` that `before` lacks in this order. In long
/// texts that differ a lot, all lines between the common beginning and the common end are changed.
QVector<int> changedLines(const QStringList& before, const QStringList& after);

} // namespace workbench
