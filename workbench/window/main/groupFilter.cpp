#include "window/main/groupFilter.h"

#include <QRegularExpression>
#include <QStringList>

namespace workbench {

namespace {
/// Is called for each group after each key, so it does not compile a regular expression.
bool hasWord(const QString& title, const QString& word)
{
    const auto isInWord = [&title](int at) {
        return at >= 0 && at < title.size() && title[at].isLetterOrNumber();
    };
    for (int at = title.indexOf(word); at >= 0; at = title.indexOf(word, at + 1))
        if (!isInWord(at - 1) && !isInWord(at + word.size()))
            return true;
    return false;
}
} // namespace

bool matchesGroupFilter(const QString& filter, int number, const QString& title)
{
    static const QRegularExpression separator(QStringLiteral("[\\s,;]+"));
    static const QRegularExpression numbers(QStringLiteral("^(\\d{1,9})(?:-(\\d{1,9}))?$"));
    bool hasNumbers = false;
    bool isListed = false;
    for (const QString& part : filter.split(separator, Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = numbers.match(part);
        if (!match.hasMatch()) {
            if (!title.contains(part, Qt::CaseInsensitive))
                return false;
            continue;
        }
        const int first = match.captured(1).toInt();
        const bool isRange = !match.captured(2).isEmpty();
        const int last = isRange ? match.captured(2).toInt() : first;
        hasNumbers = true;
        isListed = isListed || (number >= first && number <= last) || hasWord(title, part);
    }
    return isListed || !hasNumbers;
}

} // namespace workbench
