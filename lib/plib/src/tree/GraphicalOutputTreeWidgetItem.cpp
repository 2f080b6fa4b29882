#include "tree/GraphicalOutputTreeWidgetItem.h"

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(const QString& text)
    : QTreeWidgetItem(OutputType)
{
    setText(0, text);
    setCheckState(0, Qt::Unchecked);
}

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(const QTreeWidgetItem& look)
    : QTreeWidgetItem(OutputType)
{
    takeLook(look);
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;

void GraphicalOutputTreeWidgetItem::takeLook(const QTreeWidgetItem& other)
{
    QTreeWidgetItem::operator=(other);
}
