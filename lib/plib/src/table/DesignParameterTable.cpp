#include "table/DesignParameterTable.h"

#include <VKD_QT_Menu.h>

#include <QHeaderView>

namespace {
constexpr int MostLines = 4; // two lines of text, each wrapped at most once
constexpr int RowMargin = 8;
constexpr int MostRowsToFit = 500; // for more rows, measuring would take longer than filling
} // namespace

DesignParameterTable::DesignParameterTable(QWidget* parent)
    : VKD_H_TableWidget(0, ColumnCount, parent, "table")
{
    setVerticalScrollMode(ScrollPerPixel);           // rows are too tall to scroll by item
    horizontalHeader()->setHighlightSections(false); // bold headers would be truncated
    verticalHeader()->setDefaultSectionSize(MostLines * fontMetrics().lineSpacing() + RowMargin);
    verticalHeader()->setMinimumSectionSize(2 * fontMetrics().lineSpacing() + RowMargin);
}

void DesignParameterTable::fitRow(int row)
{
    if (rowCount() <= MostRowsToFit)
        resizeRowToContents(row);
}

void DesignParameterTable::fitRows()
{
    if (rowCount() <= MostRowsToFit)
        resizeRowsToContents();
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
    menu->addAction(tr("New"), this, &DesignParameterTable::signal_newClicked, QKeySequence());
    menu->addAction(tr("Delete"), this, &DesignParameterTable::signal_delClicked, QKeySequence());
    menu->exec(QCursor::pos(), nullptr);
}
