#include "table/designColumns.h"

#include "dialogs/dialogFrame.h"
#include "record/PageText.h"
#include "record/rowText.h"
#include "table/ColumnRoom.h"
#include "table/DesignParameterTable.h"
#include "table/SummaryDelegate.h"

#include <VKD_H_TableItems.h>

namespace plib {

namespace {
using Table = DesignParameterTable;

struct Column
{
    Table::Column id;
    const char* header;
    int width;         ///< pixels
    const char* topic; ///< topic in the help book
};

constexpr Column Columns[] = {
    {Table::Selection, QT_TRANSLATE_NOOP("DesignParameter", "Selection"), 150, "SELECTION"},
    {Table::Type, QT_TRANSLATE_NOOP("DesignParameter", "Type"), 150, "TYPES"},
    {Table::DirectionAndDistance, QT_TRANSLATE_NOOP("DesignParameter", "Direction and Distance"),
     200, "DIRECTIONS"},
    {Table::Reinforcement, QT_TRANSLATE_NOOP("DesignParameter", "Reinforcement"), 120,
     "REINFORCEMENT"},
    {Table::CrackControl, QT_TRANSLATE_NOOP("DesignParameter", "Crack Control"), 120,
     "CRACKCONTROL"},
};

VKD_H_TwHeaderItem* newHeader(const Column& column)
{
    const QString text = PageText::tr(column.header);
    if (column.id != Table::Type)
        return new VKD_H_TwHeaderItem(column.id, text, text, true, Qt::AlignCenter);
    std::list<ComboList> types;
    for (int type = 0; type < int(std::size(DesignTypeNames)); ++type)
        types.push_back({PageText::tr(DesignTypeNames[type]), type});
    return new VKD_H_TwHeaderComboBoxItem(column.id, types, text, text, true, Qt::AlignCenter);
}
} // namespace

void buildDesignColumns(DesignParameterTable* table)
{
    for (const Column& column : Columns)
        table->setHorizontalHeaderItem(column.id, newHeader(column));
    table->resizeColumnsToContents();
    for (const Column& column : Columns)
        table->setColumnWidth(table->getColumnNumber(column.id), column.width);
    for (int column = Table::DirectionAndDistance; column < Table::ColumnCount; ++column)
        table->setItemDelegateForColumn(column, new SummaryDelegate(table));
    new ColumnRoom(table);
    QObject::connect(table->selectionModel(), &QItemSelectionModel::currentChanged, table,
                     [table](const QModelIndex& cell) {
                         setHelpTopic(table,
                                      cell.isValid() ? Columns[cell.column()].topic : "PARA");
                     });
}

} // namespace plib
