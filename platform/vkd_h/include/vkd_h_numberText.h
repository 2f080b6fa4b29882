#pragma once

#include "vkd_h_export.h"

#include <QString>

struct StructLineEdit;

/// The result of parsing text as a number.
enum class VkdNumberState {
    Accepted,
    Incomplete,      ///< beginning of a number: a sign, a decimal separator, "1e"
    TwoDecimalSigns, ///< "1.234,5", which is ambiguous
    NoNumber,
    TooLarge, ///< above the maximum or beyond single precision
    TooSmall, ///< below the minimum
    Missing   ///< empty although a value is required
};

/// The number that vkd_h_readNumber() has parsed, or the reason why the text is not accepted.
struct VkdNumberReading
{
    VkdNumberState state;
    double value; ///< in the base unit; the description's `notSet` unless accepted
};

/// Returns whether the value equals the description's `notSet` in single precision.
VKD_H_EXPORT bool vkd_h_isNotSet(double value, const StructLineEdit& description);

/// Parses text that the user typed, in the displayed unit. In every language, both point and comma
/// are decimal separators, and there is no thousands separator. Leading and trailing whitespace is
/// ignored, and empty text means "not set". Only the digits 0 to 9 and an exponent as in "1e3" are
/// accepted. The typographic minus sign is treated as a hyphen-minus.
VKD_H_EXPORT VkdNumberReading vkd_h_readNumber(const QString& text,
                                               const StructLineEdit& description);

/// Returns the text in the form that programs read: a point for each decimal separator of the
/// description, "-" for each minus sign, and ASCII spaces. The conversion never turns other text
/// into a number.
VKD_H_EXPORT QString vkd_h_plainNumberText(const QString& text, const StructLineEdit& description);

/// Returns the text for a value given in the base unit, in the desktop's number format and without
/// the unit. Returns an empty string if the value is not set. The text has the dimension's number
/// of decimals. If these cannot represent the value in single precision, the text has up to six
/// significant digits without trailing zeros. Absolute values of at least 1e9 or below 1e-6 are
/// written with an exponent.
VKD_H_EXPORT QString vkd_h_numberText(double value, const StructLineEdit& description);

/// Returns the text that follows the number, usually the unit, without a leading space.
VKD_H_EXPORT QString vkd_h_suffixText(const StructLineEdit& description);
