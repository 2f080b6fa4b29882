#include "table/ColumnRoom.h"

#include "table/DesignParameterTable.h"

#include <QEvent>
#include <QHeaderView>

namespace plib {

ColumnRoom::ColumnRoom(DesignParameterTable* table)
    : QObject(table)
    , m_table(table)
{
    for (int column = 0; column < table->columnCount(); ++column)
        m_columns.push_back({table->columnWidth(column)});
    table->viewport()->installEventFilter(this);
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this,
            &ColumnRoom::columnResized);
}

/// A hidden viewport that is resized while it handles the resize event before its first show
/// receives no further resize event.
bool ColumnRoom::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        share();
    return false;
}

/// Fits the rows once, after all columns have their widths. Setting the width of a column may show
/// or hide a scroll bar and so change the available width.
void ColumnRoom::share()
{
    constexpr int MostRounds = 3;
    if (m_isSharing)
        return;
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
    if (isChanged)
        m_table->fitRows();
}

void ColumnRoom::columnResized(int column, int, int width)
{
    if (m_isSharing)
        return;
    m_columns[std::size_t(column)] = {width, true};
    m_table->fitRows();
}

} // namespace plib
