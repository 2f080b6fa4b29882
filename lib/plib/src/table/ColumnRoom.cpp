#include "table/ColumnRoom.h"

#include "table/DesignParameterTable.h"

#include <QEvent>
#include <QHeaderView>

namespace plib {

namespace {
constexpr int GridLine = 1;
} // namespace

ColumnRoom::ColumnRoom(DesignParameterTable* table)
    : QObject(table)
    , m_table(table)
{
    for (int column = 0; column < table->columnCount(); ++column)
        m_columns.push_back({table->columnWidth(column), false, 0});
    table->viewport()->installEventFilter(this);
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this,
            &ColumnRoom::columnResized);
}

/// A hidden viewport that is resized while it handles the resize event before its first show
/// receives no further resize event.
bool ColumnRoom::eventFilter(QObject*, QEvent* event)
{
    if ((event->type() == QEvent::Resize || event->type() == QEvent::Show) && share())
        m_table->fitHeights(0, m_table->rowCount() - 1);
    return false;
}

/// Returns whether any width has changed. Setting the width of a column may show or hide a scroll
/// bar and thus change the available width.
bool ColumnRoom::share()
{
    constexpr int MostRounds = 3;
    if (m_isSharing)
        return false;
    m_isSharing = true;
    bool isChanged = false;
    int available = -1;
    for (int round = 0; round < MostRounds && available != m_table->viewport()->width(); ++round) {
        available = m_table->viewport()->width();
        const std::vector<int> widths = columnWidths(m_columns, available);
        for (int column = 0; column < int(widths.size()); ++column) {
            isChanged |= m_table->columnWidth(column) != widths[std::size_t(column)];
            m_table->setColumnWidth(column, widths[std::size_t(column)]);
        }
    }
    m_isSharing = false;
    return isChanged;
}

/// Limits the width of the groups column, so that long lists of groups leave enough width for the
/// other columns.
bool ColumnRoom::measure(int firstRow, int lastRow)
{
    bool isChanged = false;
    for (int column = 0; column < int(m_columns.size()); ++column) {
        ColumnShare& share = m_columns[std::size_t(column)];
        const int before = share.needed;
        for (int row = firstRow; row <= lastRow; ++row) {
            const QModelIndex cell = m_table->model()->index(row, column);
            share.needed = qMax(share.needed, m_table->sizeHintForIndex(cell).width() + GridLine);
        }
        if (m_table->getColumnId(column) == DesignParameterTable::Selection)
            share.needed = qMin(share.needed, 2 * share.width);
        isChanged |= share.needed != before;
    }
    return isChanged && share();
}

void ColumnRoom::reset()
{
    for (ColumnShare& column : m_columns)
        column.needed = 0;
}

void ColumnRoom::columnResized(int column, int, int width)
{
    if (m_isSharing)
        return;
    m_columns[std::size_t(column)] = {width, true, 0};
    m_table->fitHeights(0, m_table->rowCount() - 1);
}

} // namespace plib
