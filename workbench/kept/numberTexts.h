#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace workbench {

/// The numbers for a project to keep, in ascending order: "3;12".
QString keptNumbers(const QSet<int>& numbers);
QSet<int> numbersOfKept(const QString& text);

/// The numbers for users, in the order given, with runs of three and more drawn together:
/// "1–3, 7, 8".
QString shownNumbers(const QVector<int>& numbers);

} // namespace workbench
