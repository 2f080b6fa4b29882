#pragma once

#include <Qt>

class QModelIndex;
class QTreeWidgetItem;

/// The rules of check boxes that follow each other; VKD_QT_TreeWidget states them. All of these
/// change states by setCheckState(), so the caller sees to the signals.

bool hasCheckBox(const QTreeWidgetItem* item, int column);

/// Gives all check boxes below the item this state.
void carryDown(QTreeWidgetItem* item, int column, Qt::CheckState state);

/// Brings the items above this one up to date; `index` is its place. Ends where nothing changes.
/// Siblings are asked from the item outwards until one differs, so that to set the children of a
/// parent one after the other takes few questions each.
void settleAncestors(const QTreeWidgetItem* item, const QModelIndex& index);

/// Brings every item below this one up to date, bottom up.
void settleBelow(QTreeWidgetItem* item, int column);
