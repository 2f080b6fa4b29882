#pragma once

#include <QRect>
#include <QVector>

class QTableWidget;

namespace plib {

/// The selected cells and the current cell of a table as a value, which stays valid if rows are
/// added or deleted.
class TableSelection
{
public:
    TableSelection() = default;
    explicit TableSelection(const QTableWidget& table);
    /// Selects cells of a column; the first becomes the current cell.
    static TableSelection ofColumn(int column, int firstRow, int lastRow);

    /// Selects these cells. The table's signals tell the page; the caller may block them.
    void restore(QTableWidget* table) const;

private:
    int m_row = -1;
    int m_column = -1;
    QVector<QRect> m_ranges; // x is the column
};

} // namespace plib
