#include "vkd_qt_xmlpart.h"

#include <QStringView>

namespace {
constexpr int LongestNumber = 4; // hexadecimal digits of a UTF-16 code unit

/// A character that is escaped with a named entity.
struct Sign
{
    ushort unit;
    QLatin1String name;
};
const Sign Signs[] = {
    {'<', QLatin1String("lt")}, {'>', QLatin1String("gt")}, {'&', QLatin1String("amp")}};

/// Returns whether the text has an unpaired surrogate at `at`. Conversion to UTF-8 would lose it.
bool isHalfPair(const QString& text, int at)
{
    const QChar unit = text.at(at);
    if (unit.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    return unit.isLowSurrogate() && (at == 0 || !text.at(at - 1).isHighSurrogate());
}

QString escaped(QChar unit, bool isNumber)
{
    for (const Sign& sign : Signs)
        if (unit == sign.unit)
            return QLatin1Char('&') + sign.name + QLatin1Char(';');
    return isNumber ? QStringLiteral("&#x%1;").arg(unit.unicode(), 0, 16) : QString(unit);
}

/// Converts the text between "&" and ";" to a UTF-16 code unit. Returns -1 if it is unknown.
int unitOf(QStringView name)
{
    for (const Sign& sign : Signs)
        if (name == sign.name)
            return sign.unit;
    if (!name.startsWith(QLatin1String("#x")) || name.size() > 2 + LongestNumber)
        return -1;
    bool isNumber = false;
    const int unit = name.mid(2).toString().toInt(&isNumber, 16);
    return isNumber && unit >= 0 ? unit : -1;
}

/// Decodes the escape sequences written by escaped(). Unknown sequences are kept as text.
QString unescaped(QStringView text)
{
    QString value = QStringLiteral("");
    for (int at = 0; at < text.size(); ++at) {
        const QStringView name = text.mid(at + 1, 2 + LongestNumber + 1);
        const int length =
            text.at(at) == QLatin1Char('&') ? int(name.indexOf(QLatin1Char(';'))) : -1;
        const int unit = length < 0 ? -1 : unitOf(name.left(length));
        value += unit < 0 ? text.at(at) : QChar(ushort(unit));
        at += unit < 0 ? 0 : length + 1;
    }
    return value;
}
} // namespace

QString vkd_qt_writeXMLpart(const QString& value, const QString& tag)
{
    QString part = QLatin1Char('<') + tag + QLatin1Char('>');
    for (int at = 0; at < value.size(); ++at)
        part += escaped(value.at(at),
                        value.at(at).category() == QChar::Other_Control || isHalfPair(value, at));
    return part + QLatin1String("</") + tag + QLatin1Char('>');
}

/// Angle brackets in values are escaped, so every "<" begins a tag.
QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag, int* next)
{
    const QString begin = QLatin1Char('<') + tag + QLatin1Char('>');
    const QString end = QLatin1String("</") + tag + QLatin1Char('>');
    for (int at = qMax(0, from); !tag.isEmpty();) {
        at = xml.indexOf(begin, at);
        if (at < 0)
            break;
        at += begin.size();
        const int close = xml.indexOf(QLatin1Char('<'), at);
        if (close < 0)
            break;
        if (QStringView(xml).mid(close).startsWith(end)) {
            if (next)
                *next = close + end.size();
            return unescaped(QStringView(xml).mid(at, close - at));
        }
        at = close;
    }
    return QString();
}
