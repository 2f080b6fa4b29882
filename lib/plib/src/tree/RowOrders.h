#pragma once

#include <QVector>

#include <cstddef>
#include <vector>

namespace plib {

/// The rows of a plot that the lines of a selection text list by number. Used by SelectionApplier.
/// Numbers are expected in ascending order, both in the lines and in the plot. Any other order
/// takes longer, but has the same result.
class RowOrders
{
public:
    struct Row
    {
        int number;
        int time;       ///< time of the last line that lists the row
        int index = -1; ///< index of the row in the plot; -1 until the user of the class sets it
    };

    /// Adds the rows that a line lists. The first row gets the given time, and each row gets a
    /// later time than all previously added rows.
    void add(const QVector<int>& numbers, int time);
    /// Must be called after the last row has been added and before find().
    void sort();

    /// Returns the row, or null if no line lists it.
    Row* find(int number)
    {
        const bool isBelowNext = m_next == m_rows.size() || number < m_rows[m_next].number;
        const bool isAbovePrevious = m_next == 0 || number > m_rows[m_next - 1].number;
        if (isBelowNext && isAbovePrevious)
            return nullptr;
        if (isBelowNext || number != m_rows[m_next].number)
            m_next = search(number);
        const bool isFound = m_next < m_rows.size() && m_rows[m_next].number == number;
        return isFound ? &m_rows[m_next++] : nullptr;
    }

private:
    size_t search(int number) const;

    std::vector<Row> m_rows;
    size_t m_next = 0; // index after the most recently found row
};

} // namespace plib
