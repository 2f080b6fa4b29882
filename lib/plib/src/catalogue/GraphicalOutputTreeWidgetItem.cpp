#include "GraphicalOutputTreeWidgetItem.h"

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem()
    : QTreeWidgetItem(OutputType)
{
}

/// Copied by assignment: the base's copy constructor would make a plain item of it.
GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(
    const GraphicalOutputTreeWidgetItem& other)
    : QTreeWidgetItem(OutputType)
    , record(other.record)
    , isLC(other.isLC)
    , number(other.number)
    , level(other.level)
{
    QTreeWidgetItem::operator=(other);
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;
