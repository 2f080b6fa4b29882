#include "tree/selectionText.h"

#include <algorithm>

namespace plib {

namespace {
QVector<int> numbersOf(const QStringRef& text)
{
    QVector<int> numbers;
    for (int begin = 0; begin < text.size();) {
        const auto comma = std::find(text.begin() + begin, text.end(), QLatin1Char(','));
        const int end = int(comma - text.begin());
        if (end > begin)
            numbers.append(selectionNumber(text.mid(begin, end - begin)));
        begin = end + 1;
    }
    return numbers;
}
} // namespace

int selectionNumber(const QStringRef& text)
{
    constexpr int AlwaysFits = 9; // number of digits
    if (text.size() > AlwaysFits)
        return text.toInt();
    int number = 0;
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return text.toInt();
        number = 10 * number + (c.unicode() - '0');
    }
    return number;
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
    const auto lines = text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts);
    *isEmpty = lines.isEmpty();
    for (const QStringRef& line : lines) {
        const auto parts = line.split(QLatin1Char(':'), Qt::SkipEmptyParts);
        if (parts.size() < 2)
            continue;
        const QString id = parts[1].trimmed().toString();
        if (parts[0] == QLatin1String("Checked"))
            result.push_back({SelectionLine::Check, id, {}});
        else if (parts[0] == QLatin1String("Unchecked"))
            result.push_back({SelectionLine::Uncheck, id, {}});
        else if (parts[0] == QLatin1String("Partially") && parts.size() >= 3)
            result.push_back({SelectionLine::Partial, id, numbersOf(parts[2])});
    }
    return result;
}

} // namespace plib
