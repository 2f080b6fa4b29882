#pragma once

#include "vkd_h_export.h"

#include <QString>

struct StructLineEdit;

/// The result of reading a text as a number.
enum class VkdNumberState {
    Accepted,
    Incomplete,      ///< the beginning of a number: a sign, a decimal sign, "1e"
    TwoDecimalSigns, ///< "1.234,5", which is ambiguous
    NoNumber,
    TooLarge, ///< above the maximum or beyond single precision
    TooSmall, ///< below the minimum
    Missing   ///< empty although a value is required
};

struct VkdNumberReading
{
    VkdNumberState state;
    double value; ///< in the base unit; the description's `notSet` unless accepted
};

/// Returns whether the value equals the description's `notSet` in single precision.
VKD_H_EXPORT bool vkd_h_isNotSet(double value, const StructLineEdit& description);

/// Reads a text that the user typed in the shown unit. In every language, dot and comma are decimal
/// signs, and there is no thousands separator. Outer blanks of any kind are ignored; an empty text
/// means "not set". Only the digits 0 to 9 are accepted, and an exponent as in "1e3"; the
/// typographic minus counts as a minus.
VKD_H_EXPORT VkdNumberReading vkd_h_readNumber(const QString& text,
                                               const StructLineEdit& description);

/// Returns the text in the form that programs read: a point for each decimal sign of the
/// description, "-" for each minus, and plain blanks. A text that is not a number does not become
/// one.
VKD_H_EXPORT QString vkd_h_plainNumberText(const QString& text, const StructLineEdit& description);

/// Returns the text of a value in the base unit, without unit and in the desktop's number format;
/// empty if the value is not set. The text has the decimals of the dimension. If these do not
/// suffice in single precision, it has up to six significant digits without trailing zeros. From
/// 1e9 on and below 1e-6 it has an exponent.
VKD_H_EXPORT QString vkd_h_numberText(double value, const StructLineEdit& description);

/// Returns the text after the number, usually the unit, without a leading blank.
VKD_H_EXPORT QString vkd_h_suffixText(const StructLineEdit& description);
