#pragma once

#include <Qt>

namespace plib {

/// The rules for parents in a tree of check boxes. A parent is Unchecked if all its children are
/// Unchecked, Checked if all its children are Checked, and otherwise PartiallyChecked. `Node` must
/// have the members of OutputNode. Items other than output items have no check box.

/// Returns the state that results from the children of the node. The node must have children.
template <typename Node>
Qt::CheckState stateOfChildren(const Node* node)
{
    const Qt::CheckState first = node->child(0)->checkState(0);
    for (int i = 1; i < node->childCount(); ++i)
        if (node->child(i)->checkState(0) != first)
            return Qt::PartiallyChecked;
    return first;
}

/// Updates the node and all parents below it once, bottom up. The resulting states are the same as
/// if each item had been changed individually and had updated its ancestors.
template <typename Node>
void settleBranch(Node* node)
{
    const int count = node->childCount();
    for (int i = 0; i < count; ++i)
        settleBranch(static_cast<Node*>(node->child(i)));
    if (count > 0)
        node->setCheckState(0, stateOfChildren(node));
}

} // namespace plib
