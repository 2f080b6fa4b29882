#include "vkd_h_numberText.h"

#include "fields/shownNumber.h"
#include "StructLineEdit.h"
#include "vkd_h_units.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr int LongestText = 200;
constexpr int SignificantDigits = 6;
constexpr double ExponentFrom = 1e9;
constexpr double ExponentBelow = 1e-6;

/// Uses [0-9] because \d would match the digits of every script.
bool isNumber(const QString& plain)
{
    static const QRegularExpression number(
        QStringLiteral("\\A[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?\\z"));
    return number.match(plain).hasMatch();
}

bool isBeginning(const QString& plain)
{
    static const QRegularExpression beginning(
        QStringLiteral("\\A[+-]?(\\.|([0-9]+\\.?[0-9]*|\\.[0-9]+)[eE][+-]?)?\\z"));
    return beginning.match(plain).hasMatch();
}

VkdNumberState stateOf(const QString& plain)
{
    if (plain.size() > LongestText)
        return VkdNumberState::NoNumber;
    if (isNumber(plain))
        return VkdNumberState::Accepted;
    if (isBeginning(plain))
        return VkdNumberState::Incomplete;
    const QString whole = QString(plain).remove(QLatin1Char('.'));
    const bool two = plain.size() > whole.size() + 1 && isNumber(whole);
    return two ? VkdNumberState::TwoDecimalSigns : VkdNumberState::NoNumber;
}

/// Checks the limits. Records store floats, so the value must be a finite float.
VkdNumberState stateOf(double value, const StructLineEdit& description)
{
    if (!(std::fabs(value) <= double(std::numeric_limits<float>::max())))
        return value < 0 ? VkdNumberState::TooSmall : VkdNumberState::TooLarge;
    if (float(value) > float(description.maximum))
        return VkdNumberState::TooLarge;
    if (float(value) < float(description.minimum) || vkd_h_isNotSet(value, description))
        return VkdNumberState::TooSmall;
    return VkdNumberState::Accepted;
}

VkdNumberState emptyState(const StructLineEdit& description)
{
    const bool allowed = description.flags & StructLineEdit::EmptyAllowed;
    return allowed ? VkdNumberState::Accepted : VkdNumberState::Missing;
}

bool isNotSetText(const QString& text, const StructLineEdit& description)
{
    const auto& texts = description.notSetTexts;
    return text.isEmpty() || std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// Formats the number with six significant digits, then removes trailing zeros but keeps at least
/// the given number of decimals.
QString significantText(double shown, int decimals)
{
    const int needed = SignificantDigits - 1 - int(std::floor(std::log10(std::fabs(shown))));
    int cut = needed - decimals;
    QString text = QString::number(shown, 'f', std::max(needed, decimals));
    while (cut-- > 0 && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString digits(double value, const VkdDimension& dimension)
{
    const double shown = value * dimension.factor;
    const int decimals = std::max(dimension.decimals, 0);
    if (!(std::fabs(shown) < ExponentFrom))
        return QString::number(shown, 'g', SignificantDigits);
    QString text = QString::number(shown, 'f', decimals);
    if (float(text.toDouble() / dimension.factor) == float(value))
        return text;
    return std::fabs(shown) < ExponentBelow ? QString::number(shown, 'g', SignificantDigits)
                                            : significantText(shown, decimals);
}
} // namespace

bool vkd_h_isNotSet(double value, const StructLineEdit& description)
{
    return float(value) == float(description.notSet);
}

VkdNumberReading vkd_h_readNumber(const QString& text, const StructLineEdit& description)
{
    const QString trimmed = text.trimmed(); // also removes Unicode spaces such as no-break spaces
    if (isNotSetText(trimmed, description))
        return {emptyState(description), description.notSet};
    const QString plain = vkd_h_plainNumberText(trimmed, description);
    VkdNumberState state = stateOf(plain);
    double value = 0.0;
    if (state == VkdNumberState::Accepted) {
        value = plain.toDouble() / vkd_h_dimension(description.dimension).factor;
        state = stateOf(value, description);
    }
    if (state != VkdNumberState::Accepted)
        return {state, description.notSet};
    return {state, float(value) == 0 ? 0.0 : value}; // returns 0 also for "-0" and on underflow
}

QString vkd_h_plainNumberText(const QString& text, const StructLineEdit& description)
{
    QString plain = text;
    for (QChar& sign : plain) {
        if (sign == QLatin1Char(',') || description.decimalSigns.contains(sign))
            sign = QLatin1Char('.');
        else if (sign == QChar(0x2212))
            sign = QLatin1Char('-');
        else if (sign.isSpace())
            sign = QLatin1Char(' ');
    }
    return plain;
}

QString vkd_h_numberText(double value, const StructLineEdit& description)
{
    if (vkd_h_isNotSet(value, description))
        return QString();
    const QString text = vkd::h::shownNumber(digits(value, vkd_h_dimension(description.dimension)));
    return description.flags & StructLineEdit::TextForPrograms
               ? vkd_h_plainNumberText(text, description)
               : text;
}

QString vkd_h_suffixText(const StructLineEdit& description)
{
    if (!description.suffix.isEmpty())
        return description.suffix;
    return QString::fromUtf8(vkd_h_dimension(description.dimension).unit);
}
