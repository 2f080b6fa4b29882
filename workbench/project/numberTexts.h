#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace workbench {

/// Returns the numbers in the form that is saved in a project, in ascending order: "3;12".
QString savedNumbers(const QSet<int>& numbers);
QSet<int> numbersFromSaved(const QString& text);

/// Returns the numbers for display in the given order, with runs of three or more as ranges: "1–3,
/// 7, 8".
QString shownNumbers(const QVector<int>& numbers);

} // namespace workbench
