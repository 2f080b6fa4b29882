#include "search/treeItems.h"

#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <QTreeWidget>

namespace plib {

namespace {
using vkd::plib::widgetgraphicaloutput::PlotLevel;

void addBranches(QTreeWidgetItem* parent, int level, QVector<QTreeWidgetItem*>* branches)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        branches->append(parent->child(i));
        if (level < PlotLevel)
            addBranches(parent->child(i), level + 1, branches);
    }
}
} // namespace

QVector<QTreeWidgetItem*> branchesOf(const QTreeWidget& tree)
{
    QVector<QTreeWidgetItem*> branches;
    addBranches(tree.invisibleRootItem(), 0, &branches);
    return branches;
}

QModelIndex indexOf(const QTreeWidget& tree, const QTreeWidgetItem* item)
{
    const QTreeWidgetItem* parent = item->parent();
    const QTreeWidgetItem* above = parent ? parent : tree.invisibleRootItem();
    return tree.model()->index(above->indexOfChild(const_cast<QTreeWidgetItem*>(item)), 0,
                               parent ? indexOf(tree, parent) : QModelIndex());
}

QTreeWidgetItem* itemOf(const QTreeWidget& tree, const QModelIndex& index)
{
    return index.isValid() ? itemOf(tree, index.parent())->child(index.row())
                           : tree.invisibleRootItem();
}

} // namespace plib
