#include "trees/treeCheckStates.h"

#include <QModelIndex>
#include <QTreeWidget>

#include <optional>

namespace {
using State = std::optional<Qt::CheckState>; // empty if there is no check box

State ownState(const QTreeWidgetItem* item, int column)
{
    const QVariant state = item->data(column, Qt::CheckStateRole);
    return state.isValid() ? State(Qt::CheckState(state.toInt())) : State();
}

State combined(State one, State other)
{
    if (!one || !other)
        return one ? one : other;
    return *one == *other ? one : State(Qt::PartiallyChecked);
}

State stateOf(const QTreeWidgetItem* item, int column);

State stateOfChildren(const QTreeWidgetItem* item, int column)
{
    State state;
    for (int i = 0; i < item->childCount() && state != Qt::PartiallyChecked; ++i)
        state = combined(state, stateOf(item->child(i), column));
    return state;
}

/// Returns the state that the item contributes to its parent.
State stateOf(const QTreeWidgetItem* item, int column)
{
    const State own = ownState(item, column);
    return own ? own : stateOfChildren(item, column);
}

/// Returns the combined state of the parent's children, where the child at `row` has `state`.
State stateAround(const QTreeWidgetItem* parent, int row, State state, int column)
{
    const int count = parent->childCount();
    for (int step = 1; step < count && state != Qt::PartiallyChecked; ++step) {
        if (row + step < count)
            state = combined(state, stateOf(parent->child(row + step), column));
        if (row - step >= 0)
            state = combined(state, stateOf(parent->child(row - step), column));
    }
    return state;
}

} // namespace

bool hasCheckBox(const QTreeWidgetItem* item, int column)
{
    return ownState(item, column).has_value();
}

void carryDown(QTreeWidgetItem* item, int column, Qt::CheckState state)
{
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (hasCheckBox(child, column))
            child->setCheckState(column, state);
        carryDown(child, column, state);
    }
}

void settleAncestors(const QTreeWidgetItem* item, const QModelIndex& index)
{
    const int column = index.column();
    State known = ownState(item, column);
    QModelIndex at = index;
    for (QTreeWidgetItem* parent = item->parent(); parent; parent = parent->parent()) {
        known = stateAround(parent, at.row(), known, column);
        const State own = ownState(parent, column);
        if (own == known)
            return;
        if (own)
            parent->setCheckState(column, *known);
        at = at.parent();
    }
}
