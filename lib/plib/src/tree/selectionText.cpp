#include "tree/selectionText.h"

#include <algorithm>

namespace plib {

namespace {
/// Reads the text up to the next comma as a number, like QString::toInt(), and moves `begin` to the
/// comma or to `end`.
int nextNumber(const QChar*& begin, const QChar* end)
{
    constexpr int AlwaysFits = 9; // number of digits
    const QChar* const first = begin;
    unsigned number = 0;
    for (; begin < end && *begin >= QLatin1Char('0') && *begin <= QLatin1Char('9'); ++begin)
        number = 10 * number + (begin->unicode() - '0');
    const bool isWhole = begin == end || *begin == QLatin1Char(',');
    if (isWhole && begin - first <= AlwaysFits)
        return int(number);
    begin = std::find(begin, end, QLatin1Char(','));
    return QString::fromRawData(first, int(begin - first)).toInt();
}
} // namespace

QVector<int> selectionNumbers(QStringView text)
{
    QVector<int> numbers;
    constexpr int Length = 4; // estimate for a number and its comma
    numbers.reserve(int(text.size()) / Length + 1);
    const QChar* begin = text.begin();
    while (begin < text.end())
        if (*begin == QLatin1Char(','))
            ++begin;
        else
            numbers.append(nextNumber(begin, text.end()));
    return numbers;
}

QString itemId(const GraphicalOutputRecord& record, int level)
{
    QString id = record.id1;
    if (level >= 1)
        id += record.id2;
    if (level >= 2)
        id += record.id3;
    return id.trimmed();
}

std::vector<SelectionLine> parseSelection(const QString& text, bool* isEmpty)
{
    std::vector<SelectionLine> result;
    const auto lines = QStringView(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    *isEmpty = lines.isEmpty();
    for (const QStringView line : lines) {
        const auto parts = line.split(QLatin1Char(':'), Qt::SkipEmptyParts);
        if (parts.size() < 2)
            continue;
        const QString id = parts[1].trimmed().toString();
        if (parts[0] == QLatin1String("Checked"))
            result.push_back({SelectionLine::Check, id, {}});
        else if (parts[0] == QLatin1String("Unchecked"))
            result.push_back({SelectionLine::Uncheck, id, {}});
        else if (parts[0] == QLatin1String("Partially") && parts.size() >= 3)
            result.push_back({SelectionLine::Partial, id, selectionNumbers(parts[2])});
    }
    return result;
}

} // namespace plib
