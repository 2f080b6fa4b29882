#include "DesignParameterTable.h"

#include <VKD_QT_Menu.h>

#include <QHeaderView>

namespace {
constexpr int MostLines = 4; // two lines of text, each broken once
constexpr int RowMargin = 8;
constexpr int MostRowsToFit = 500; // beyond that, measuring texts would cost more than filling
} // namespace

DesignParameterTable::DesignParameterTable(QWidget* parent)
    : VKD_H_TableWidget(0, ColumnCount, parent, "table")
{
    setVerticalScrollMode(ScrollPerPixel);           // rows are tall
    horizontalHeader()->setHighlightSections(false); // bold headers would be cut
    verticalHeader()->setDefaultSectionSize(MostLines * fontMetrics().lineSpacing() + RowMargin);
    verticalHeader()->setMinimumSectionSize(2 * fontMetrics().lineSpacing() + RowMargin);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &DesignParameterTable::fitRows);
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

/// The table otherwise learns only later that a row that was just added makes it longer.
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
