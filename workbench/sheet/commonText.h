#pragma once

#include <QStringView>

namespace workbench {

/// These functions return the number of equal characters at the beginning or at the end of two
/// strings. They compare whole blocks, because this is several times faster than comparing single
/// characters.
int commonBeginning(QStringView a, QStringView b);
int commonEnd(QStringView a, QStringView b);

} // namespace workbench
