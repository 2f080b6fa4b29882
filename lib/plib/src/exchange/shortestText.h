#pragma once

#include <QString>

namespace plib {

constexpr int MostDigits = 17; ///< enough significant digits to identify every double

/// Returns the number with the fewest significant digits, at least 6, that `isExact` accepts. The
/// longest text has MostDigits.
template <class Accepts>
QString shortestText(double number, Accepts isExact)
{
    constexpr int FewestDigits = 6;
    QString text;
    for (int digits = FewestDigits; digits <= MostDigits; ++digits) {
        text = QString::number(number, 'g', digits);
        if (isExact(text))
            break;
    }
    return text;
}

} // namespace plib
