#pragma once

#include <QModelIndex>
#include <QVector>

class QTreeWidget;
class QTreeWidgetItem;

namespace plib {

/// Returns the captions and plots of an output tree in the order of the tree, without the rows.
QVector<QTreeWidgetItem*> branchesOf(const QTreeWidget& tree);

/// These functions return the same as functions of QTreeWidget that only subclasses can call.
QModelIndex indexOf(const QTreeWidget& tree, const QTreeWidgetItem* item);
QTreeWidgetItem* itemOf(const QTreeWidget& tree, const QModelIndex& index);

} // namespace plib
