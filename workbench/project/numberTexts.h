#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace workbench {

/// Returns the numbers in the format that is saved in a project, in ascending order: "3;12".
QString savedNumbers(const QSet<int>& numbers);
QSet<int> numbersFromSaved(const QString& text);

/// Returns the numbers as a string for display, in the given order. Three or more consecutive
/// numbers are shown as a range: "1–3, 7, 8".
QString shownNumbers(const QVector<int>& numbers);

} // namespace workbench
