#include "fields/refusalText.h"

#include "VKD_H_LineEdit.h"
#include "vkd_h_numberText.h"
#include "vkd_h_units.h"

namespace {
QString withUnit(double value, const StructLineEdit& description)
{
    const QString number = vkd_h_numberText(value, description);
    const QString unit = vkd_h_suffixText(description);
    const bool isClose = unit.isEmpty() || unit == QString(QChar(0xB0));
    return isClose ? number + unit : number + QLatin1Char(' ') + unit;
}
} // namespace

QString refusalText(VkdNumberState state, const QString& text, const StructLineEdit& description)
{
    switch (state) {
    case VkdNumberState::Accepted: return QString();
    case VkdNumberState::TwoDecimalSigns:
        return VKD_H_LineEdit::tr("“%1” has more than one decimal separator.\nA comma and a point "
                                  "are both decimal separators; there is no thousands separator.")
            .arg(text);
    case VkdNumberState::TooLarge:
        return VKD_H_LineEdit::tr("%1 is too large; the greatest value is %2.")
            .arg(text, withUnit(description.maximum, description));
    case VkdNumberState::TooSmall:
        return VKD_H_LineEdit::tr("%1 is too small; the smallest value is %2.")
            .arg(text, withUnit(description.minimum, description));
    case VkdNumberState::Missing: return VKD_H_LineEdit::tr("A value is required here.");
    case VkdNumberState::Incomplete:
    case VkdNumberState::NoNumber: break;
    }
    return VKD_H_LineEdit::tr("“%1” is not a number.").arg(text);
}

QString doubtText(double value, const VkdPlausibleRange& range, const StructLineEdit& description)
{
    const bool isUsual =
        float(value) >= float(range.minimum) && float(value) <= float(range.maximum);
    if (isUsual || vkd_h_isNotSet(value, description))
        return QString();
    return VKD_H_LineEdit::tr("Usual values are %1 to %2. The value is accepted all the same.")
        .arg(withUnit(range.minimum, description), withUnit(range.maximum, description));
}

QString acceptedValueText(double value, const StructLineEdit& description)
{
    if (vkd_h_isNotSet(value, description))
        return VKD_H_LineEdit::tr("The value is still not set. Esc empties the field.");
    return VKD_H_LineEdit::tr("The value is still %1. Esc restores it.")
        .arg(withUnit(value, description));
}
