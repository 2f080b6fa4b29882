#pragma once

#include <Qt>

class QModelIndex;
class QTreeWidgetItem;

/// The propagation rules for the check boxes of VKD_QT_TreeWidget. All functions change states with
/// setCheckState(). The caller must block signals.

bool hasCheckBox(const QTreeWidgetItem* item, int column);

/// Sets all check boxes below the item to this state.
void carryDown(QTreeWidgetItem* item, int column, Qt::CheckState state);

/// Updates the ancestors of the item; `index` is its model index. Stops at the first ancestor whose
/// state does not change. Siblings are read in both directions, starting at the item, until one
/// differs. If the children of a parent are set one after the other, only a few siblings are
/// therefore read each time.
void settleAncestors(const QTreeWidgetItem* item, const QModelIndex& index);
