#pragma once

#include <QString>

namespace plib {

constexpr int NoSecondNumber = -1;

/// Returns the second load case in a row label such as "12+14: Wind". This is the number after the
/// first "+", provided that the "+" precedes the first ":" or, in a label without ":", is among the
/// first five characters. Returns -1 if there is no such number or if it is invalid.
int secondNumber(const QString& label);

/// Returns the label of a load case: the number with up to six significant digits, a space and, if
/// there is a title, a colon and the title.
QString rowLabel(double number, const QString& title);

} // namespace plib
