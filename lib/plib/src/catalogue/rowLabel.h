#pragma once

#include <QString>

namespace plib {

constexpr int NoSecondNumber = -1;

/// The second load case that a row label such as "12+14: Wind" asks for: the number behind the
/// first "+" before the first ":", or in the first five characters where there is no ":". -1 if
/// there is none, or none that can be read.
int secondNumber(const QString& label);

/// The label of a row made from a load case: the number in up to six significant digits, a blank,
/// and if there is a title a colon and the title.
QString rowLabel(double number, const QString& title);

} // namespace plib
