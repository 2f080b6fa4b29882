#include "DesignParameterTable.h"

#include <VKD_QT_Menu.h>

#include <QHeaderView>

namespace {
constexpr int LinesPerRow = 2;
constexpr int RowMargin = 10;
} // namespace

DesignParameterTable::DesignParameterTable(QWidget* parent)
    : VKD_H_TableWidget(0, ColumnCount, parent, "table")
{
    verticalHeader()->setDefaultSectionSize(LinesPerRow * fontMetrics().lineSpacing() + RowMargin);
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
