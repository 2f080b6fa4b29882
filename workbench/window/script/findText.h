#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns the positions of all occurrences of `words` in a text, in ascending order. They do not
/// overlap. The case of the letters is ignored.
QVector<int> findText(const QString& text, const QString& words);

} // namespace workbench
