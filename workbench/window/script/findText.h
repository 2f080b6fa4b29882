#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns the positions of all occurrences of `words` in `text`, ignoring case, in ascending
/// order. The occurrences do not overlap.
QVector<int> findText(const QString& text, const QString& words);

} // namespace workbench
