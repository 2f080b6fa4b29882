#include "table/TableSelection.h"

#include <QDataStream>
#include <QTableWidget>

namespace plib {

TableSelection::TableSelection(const QTableWidget& table)
    : m_row(table.currentRow())
    , m_column(table.currentColumn())
{
    const QItemSelection ranges = table.selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        m_ranges << QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
}

TableSelection TableSelection::ofColumn(int column, int firstRow, int lastRow)
{
    TableSelection selection;
    selection.m_row = firstRow;
    selection.m_column = column;
    selection.m_ranges << QRect(QPoint(column, firstRow), QPoint(column, lastRow));
    return selection;
}

void TableSelection::restore(QTableWidget* table) const
{
    const QAbstractItemModel* model = table->model();
    QItemSelection selection;
    for (const QRect& range : m_ranges)
        selection.select(model->index(range.top(), range.left()),
                         model->index(range.bottom(), range.right()));
    table->selectionModel()->setCurrentIndex(model->index(m_row, m_column),
                                             QItemSelectionModel::NoUpdate);
    table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QDataStream& operator<<(QDataStream& stream, const TableSelection& selection)
{
    return stream << qint32(selection.m_row) << qint32(selection.m_column) << selection.m_ranges;
}

QDataStream& operator>>(QDataStream& stream, TableSelection& selection)
{
    qint32 row = 0, column = 0;
    stream >> row >> column >> selection.m_ranges;
    selection.m_row = row;
    selection.m_column = column;
    return stream;
}

} // namespace plib
