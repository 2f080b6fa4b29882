#include "VKD_QT_TableWidget.h"

#include "vkd_qt_visibleLines.h"

VKD_QT_TableWidget::VKD_QT_TableWidget(int rows, int columns, QWidget* parent, const char* name)
    : QTableWidget(rows, columns, parent)
{
    setObjectName(QLatin1String(name));
}

bool VKD_QT_TableWidget::isRowSelected(int row) const
{
    const QItemSelection ranges = selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        if (range.top() <= row && row <= range.bottom())
            return true;
    return false;
}

std::set<int> VKD_QT_TableWidget::getSelectetRows() const
{
    std::set<int> rows;
    const QItemSelection ranges = selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
    return rows;
}

VKD_QT_DEFINE_VIEW_OPTIONS(VKD_QT_TableWidget, QTableWidget, vkd_qt_visibleLines)
