#pragma once

#include <QModelIndex>
#include <QVector>

class QTreeWidget;
class QTreeWidgetItem;

namespace plib {

/// Returns the captions and plots of an output tree in the order of the tree, without the rows.
QVector<QTreeWidgetItem*> branchesOf(const QTreeWidget& tree);

/// Return the same as the functions of QTreeWidget that are available only to its subclasses.
QModelIndex indexOf(const QTreeWidget& tree, const QTreeWidgetItem* item);
QTreeWidgetItem* itemOf(const QTreeWidget& tree, const QModelIndex& index);

} // namespace plib
