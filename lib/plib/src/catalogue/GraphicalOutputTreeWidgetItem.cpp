#include "GraphicalOutputTreeWidgetItem.h"

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem()
   {
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;
