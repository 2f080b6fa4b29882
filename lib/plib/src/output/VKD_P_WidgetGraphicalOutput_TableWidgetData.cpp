#include "VKD_P_WidgetGraphicalOutput_TableWidgetData.h"

#include "tree/GraphicalOutputTreeWidget.h"
#include "tree/tableRows.h"
#include "VKD_P_WidgetGraphicalOutput.h"

#include <VKD_H_TableWidget.h>
#include <VKD_H_TwHeaderLineEditItem.h>

#include <QPointer>

using TableWidgetData = VKD_P_WidgetGraphicalOutput_TableWidgetData;

/// The pointers become null when the page or the table is destroyed.
struct TableWidgetDataRecord
{
    QPointer<VKD_H_TableWidget> table;
    int numberColumn = 0;
    int checkColumn = 0;
    int titleColumn = 0;
    QPointer<GraphicalOutputTreeWidget> tree;
};

namespace {
bool isChecked(const QTableWidgetItem* item)
{
    const auto box = dynamic_cast<const VKD_H_TwSimpleCheckBoxItem*>(item);
    return box && box->isChecked();
}

/// Returns the checked load cases, or all load cases if the table has no check boxes. Rows without
/// a number cell are ignored.
std::vector<plib::TableLoadCase> readTable(const TableWidgetDataRecord& data)
{
    std::vector<plib::TableLoadCase> found;
    for (int row = 0; row < data.table->rowCount(); ++row) {
        if (data.checkColumn >= 0 && !isChecked(data.table->item(row, data.checkColumn)))
            continue;
        const auto number = dynamic_cast<const VKD_H_TwSimpleLineEditItem*>(
            data.table->item(row, data.numberColumn));
        if (!number)
            continue;
        const QTableWidgetItem* title =
            data.titleColumn < 0 ? nullptr : data.table->item(row, data.titleColumn);
        found.push_back({number->getVal(nullptr), title ? title->text() : QString()});
    }
    return found;
}
} // namespace

VKD_P_WidgetGraphicalOutput_TableWidgetData::VKD_P_WidgetGraphicalOutput_TableWidgetData()
    : data(new TableWidgetDataRecord)
{
}

VKD_P_WidgetGraphicalOutput_TableWidgetData::~VKD_P_WidgetGraphicalOutput_TableWidgetData() =
    default;

void VKD_P_WidgetGraphicalOutput_TableWidgetData::setWidgets(VKD_P_WidgetGraphicalOutput* page,
                                                             VKD_H_TableWidget* table,
                                                             int numberColumn, int checkColumn,
                                                             int titleColumn)
{
    if (!page || !table)
        return;
    data->table = table;
    data->numberColumn = numberColumn;
    data->checkColumn = checkColumn;
    data->titleColumn = titleColumn;
    data->tree = page->findChild<GraphicalOutputTreeWidget*>();
    connect(table, &QTableWidget::itemChanged, this, &TableWidgetData::reset);
    connect(table, &VKD_H_TableWidget::signal_rowCountChanged, this, &TableWidgetData::reset);
}

void VKD_P_WidgetGraphicalOutput_TableWidgetData::reset()
{
    if (data->tree && data->table)
        data->tree->setUsedNumbersAndNames(plib::rowsOfTable(readTable(*data)));
}
