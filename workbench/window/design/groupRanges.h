#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Returns ascending groups as a short text such as "1-40, 45, COLS". Negative numbers are omitted.
QString groupRanges(const QVector<int>& groups);

} // namespace workbench
