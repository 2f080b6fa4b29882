#pragma once

#include <Qt>

class QModelIndex;
class QTreeWidgetItem;

/// The propagation rules of VKD_QT_TreeWidget's check boxes. All functions change states by
/// setCheckState(); the caller blocks signals.

bool hasCheckBox(const QTreeWidgetItem* item, int column);

/// Sets this state in all check boxes below the item.
void carryDown(QTreeWidgetItem* item, int column, Qt::CheckState state);

/// Updates the items above this one; `index` is its model index. Stops where nothing changes.
/// Siblings are read from the item outwards until one differs, so that setting the children of a
/// parent one after the other reads few siblings each.
void settleAncestors(const QTreeWidgetItem* item, const QModelIndex& index);
