#include "window/choice/RowFilter.h"

#include <QRegularExpression>

#include <algorithm>

namespace workbench {

namespace {
/// This function is called for each row after each keystroke, so it avoids compiling a regular
/// expression.
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

RowFilter::RowFilter(const QString& text, Numbers numbers)
    : m_numbers(numbers)
{
    static const QRegularExpression range(QStringLiteral("(\\d)\\s*[-\\x{2013}]\\s*(?=\\d)"));
    static const QRegularExpression separator(QStringLiteral("[\\s,;]+"));
    static const QRegularExpression number(QStringLiteral("^(\\d{1,9})(?:-(\\d{1,9}))?$"));
    const QString plain = QString(text).replace(range, QStringLiteral("\\1-"));
    for (const QString& part : plain.split(separator, Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = number.match(part);
        if (!match.hasMatch()) {
            m_words << part;
            continue;
        }
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        m_ranges << std::minmax(first, last);
        m_rangeTexts << part;
    }
}

bool RowFilter::matches(int number, const QString& title) const
{
    for (const QString& word : m_words)
        if (!title.contains(word, Qt::CaseInsensitive))
            return false;
    const auto isInTitle = [&title](const QString& text) { return hasWord(title, text); };
    return m_ranges.isEmpty() ||
           std::any_of(m_ranges.begin(), m_ranges.end(),
                       [number](const auto& range) {
                           return number >= range.first && number <= range.second;
                       }) ||
           (m_numbers == Numbers::AlsoInTitles &&
            std::any_of(m_rangeTexts.begin(), m_rangeTexts.end(), isInTitle));
}

} // namespace workbench
