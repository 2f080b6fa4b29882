#pragma once

#include <QString>

namespace plib {

constexpr int NoSecondNumber = -1;

/// Returns the second load case of a row label such as "12+14: Wind": the number after the first
/// "+" that precedes the first ":", or that is in the first five characters if there is no ":".
/// Returns -1 if there is no such number or if it cannot be read.
int secondNumber(const QString& label);

/// Returns the label of a load case: the number with up to six significant digits and a blank,
/// followed by a colon and the title if there is one.
QString rowLabel(double number, const QString& title);

} // namespace plib
