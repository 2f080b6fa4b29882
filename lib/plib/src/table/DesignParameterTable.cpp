#include "table/DesignParameterTable.h"

#include "table/ColumnRoom.h"

#include <VKD_QT_Menu.h>

#include <QHeaderView>

namespace {
constexpr int MostLines = 4; // two lines of text, each wrapped at most once
constexpr int RowMargin = 8;
constexpr int MostRowsToFit = 500;    // for more rows, measuring would take longer than filling
constexpr int MostRowsToMeasure = 50; // if there are more than MostRowsToFit rows
} // namespace

DesignParameterTable::DesignParameterTable(QWidget* parent)
    : VKD_H_TableWidget(0, ColumnCount, parent, "table")
{
    setVerticalScrollMode(ScrollPerPixel);           // rows are too tall to scroll by item
    horizontalHeader()->setHighlightSections(false); // bold headers would be truncated
    verticalHeader()->setDefaultSectionSize(MostLines * fontMetrics().lineSpacing() + RowMargin);
    verticalHeader()->setMinimumSectionSize(2 * fontMetrics().lineSpacing() + RowMargin);
}

void DesignParameterTable::fitRows(int first, int last)
{
    if (rowCount() > MostRowsToFit)
        return;
    const bool areAllChanged = findChild<plib::ColumnRoom*>()->measure(first, last);
    fitHeights(areAllChanged ? 0 : first, areAllChanged ? rowCount() - 1 : last);
}

void DesignParameterTable::fitAllRows()
{
    auto room = findChild<plib::ColumnRoom*>();
    room->reset();
    room->measure(0, (rowCount() > MostRowsToFit ? MostRowsToMeasure : rowCount()) - 1);
    fitHeights(0, rowCount() - 1);
}

void DesignParameterTable::fitHeights(int first, int last)
{
    if (rowCount() > MostRowsToFit)
        return;
    if (last - first + 1 == rowCount())
        return resizeRowsToContents();
    for (int row = first; row <= last; ++row)
        resizeRowToContents(row);
}

/// Lays out the table first, because the scroll range does not yet include a row that has just been
/// added.
void DesignParameterTable::bringIntoView(int row)
{
    executeDelayedItemsLayout();
    updateGeometries();
    scrollToItem(item(row, 0));
}

void DesignParameterTable::contextMenuEvent(QContextMenuEvent*)
{
    VKD_QT_Menu* menu = getContextMenu();
    if (!menu)
        return;
    menu->addSeparator();
    menu->addAction(tr("New"), this, &DesignParameterTable::signal_newClicked);
    menu->addAction(tr("Delete"), this, &DesignParameterTable::signal_delClicked);
    menu->exec(QCursor::pos(), nullptr);
}
