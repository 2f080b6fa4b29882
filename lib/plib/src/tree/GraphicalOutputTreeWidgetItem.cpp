#include "tree/GraphicalOutputTreeWidgetItem.h"

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(const QString& text)
    : QTreeWidgetItem(OutputType)
{
    setText(0, text);
    setCheckState(0, Qt::Unchecked);
}

/// Copies by assignment, because the copy constructor of the base class would create a plain item.
GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(
    const GraphicalOutputTreeWidgetItem& other)
    : QTreeWidgetItem(OutputType)
    , record(other.record)
    , isLC(other.isLC)
    , number(other.number)
    , level(other.level)
{
    takeLook(other);
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;

void GraphicalOutputTreeWidgetItem::takeLook(const GraphicalOutputTreeWidgetItem& other)
{
    QTreeWidgetItem::operator=(other);
}
