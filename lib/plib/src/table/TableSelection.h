#pragma once

#include <QRect>
#include <QVector>

class QDataStream;
class QTableWidget;

namespace plib {

/// The selected cells and the current cell of a table as a value, which remains valid if rows are
/// added or deleted.
class TableSelection
{
public:
    TableSelection() = default;
    explicit TableSelection(const QTableWidget& table);
    /// Returns a selection of cells in one column, in which the first cell is the current cell.
    static TableSelection ofColumn(int column, int firstRow, int lastRow);

    /// Selects these cells in the table. The table's signals notify the page, unless the caller
    /// blocks them.
    void restore(QTableWidget* table) const;

    friend QDataStream& operator<<(QDataStream& stream, const TableSelection& selection);
    friend QDataStream& operator>>(QDataStream& stream, TableSelection& selection);

private:
    int m_row = -1;
    int m_column = -1;
    QVector<QRect> m_ranges; // x is the column, y the row
};

} // namespace plib
