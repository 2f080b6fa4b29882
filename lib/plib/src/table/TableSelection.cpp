#include "table/TableSelection.h"

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

} // namespace plib
