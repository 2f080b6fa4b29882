#include "window/support/rowHeight.h"

#include <QHeaderView>
#include <QStyle>
#include <QTableView>

namespace workbench {

void setRowsOneLineHigh(QTableView* table)
{
    constexpr int Margin = 4;
    const int box = table->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, table);
    QHeaderView* rows = table->verticalHeader();
    rows->setMinimumSectionSize(1); // the style's minimum is higher
    rows->setDefaultSectionSize(qMax(table->fontMetrics().height(), box) + Margin);
}

} // namespace workbench
