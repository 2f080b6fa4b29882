#include "GraphicalOutputTreeWidgetItem.h"

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem()
    : QTreeWidgetItem(OutputType)
{
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;
