#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <utility>

namespace workbench {

/// A filter for rows that have a number and a title, for example "1-20, 101" or "wind". Its terms
/// are separated by spaces, commas or semicolons. The row's number must match one of the numbers or
/// ranges, if there are any, and its title must contain all words.
class RowFilter
{
public:
    /// Whether a number also matches a title that contains it as a word.
    enum class Numbers { OfRows, AlsoInTitles };

    explicit RowFilter(const QString& text, Numbers numbers = Numbers::OfRows);

    bool isEmpty() const { return m_ranges.isEmpty() && m_words.isEmpty(); }
    bool matches(int number, const QString& title) const;

private:
    Numbers m_numbers;
    QVector<std::pair<int, int>> m_ranges; ///< the first and the last number
    QStringList m_rangeTexts;              ///< as typed, in the order of the ranges
    QStringList m_words;
};

} // namespace workbench
