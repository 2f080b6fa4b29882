#pragma once

#include <Qt>

namespace plib {

/// The rules of a tree of check boxes. The state of an item is copied to all its descendants. A
/// parent is Unchecked if all its children are Unchecked, Checked if all are Checked, otherwise
/// PartiallyChecked. `Node` has the members of OutputNode. Items other than output items have no
/// check box.

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

template <typename Node>
void carryDown(Node* node, Qt::CheckState state)
{
    node->setCheckState(0, state);
    for (int i = 0; i < node->childCount(); ++i)
        carryDown(static_cast<Node*>(node->child(i)), state);
}

/// Updates the ancestors after a change of the node; stops at the first one that does not change.
template <typename Node>
void settleAncestors(Node* node)
{
    for (auto* parent = node->parent(); parent; parent = parent->parent()) {
        const Qt::CheckState state = stateOfChildren(parent);
        if (parent->checkState(0) == state)
            return;
        parent->setCheckState(0, state);
    }
}

/// Applies a click of the user on an item.
template <typename Node>
void setBranchState(Node* node, Qt::CheckState state)
{
    carryDown(node, state);
    settleAncestors(node);
}

/// Updates the node and every parent below it, bottom up and once each. The states equal those
/// after single changes, each followed by settleAncestors().
template <typename Node>
void settleBranch(Node* node)
{
    const int count = node->childCount();
    for (int i = 0; i < count; ++i)
        settleBranch(static_cast<Node*>(node->child(i)));
    if (count > 0)
        node->setCheckState(0, stateOfChildren(node));
}

/// Calls settleBranch() for every top level item below the root.
template <typename Node>
void settleTree(Node* root)
{
    for (int i = 0; i < root->childCount(); ++i)
        settleBranch(static_cast<Node*>(root->child(i)));
}

} // namespace plib
