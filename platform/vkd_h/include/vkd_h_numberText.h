#pragma once

#include "vkd_h_export.h"

#include <QString>

struct StructLineEdit;

/// How a text reads as a number.
enum class VkdNumberState {
    Accepted,
    Incomplete,      ///< the beginning of a number: a sign, a decimal sign, "1e"
    TwoDecimalSigns, ///< "1.234,5": which of them is meant, nobody can tell
    NoNumber,
    TooLarge, ///< above the maximum, or more than single precision holds
    TooSmall, ///< below the minimum
    Missing   ///< empty where a value is needed
};

struct VkdNumberReading
{
    VkdNumberState state;
    double value; ///< in the base unit; the description's `notSet` unless accepted
};

/// Whether the value is the description's `notSet`, in single precision.
VKD_H_EXPORT bool vkd_h_isNotSet(double value, const StructLineEdit& description);

/// Reads what a user typed in the shown unit. In every language dot and comma are both the decimal
/// sign, and there is no thousands mark. Outer blanks of any kind are left out; an empty text is
/// "not set". Only the digits 0 to 9 are read, and an exponent as in "1e3"; the typographic minus
/// counts as a minus.
VKD_H_EXPORT VkdNumberReading vkd_h_readNumber(const QString& text,
                                               const StructLineEdit& description);

/// The text as programs read numbers: with a point for each decimal sign of the description, "-"
/// for a minus, and plain blanks. What is no number stays none.
VKD_H_EXPORT QString vkd_h_plainNumberText(const QString& text, const StructLineEdit& description);

/// A value in the base unit as the number that stands in a field, without unit and in the format of
/// the desktop; empty if not set. It has the decimals of the dimension, and more where these would
/// make it another number in single precision: up to six significant digits, without closing zeros.
/// From 1e9 on and below 1e-6 it has an exponent.
VKD_H_EXPORT QString vkd_h_numberText(double value, const StructLineEdit& description);

/// What stands behind the number, the unit as a rule; without a blank in front.
VKD_H_EXPORT QString vkd_h_suffixText(const StructLineEdit& description);
