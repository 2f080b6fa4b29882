#pragma once

#include <Qt>

namespace plib {

/// The rule of a tree of check boxes: setting an item carries down to all below it, and each parent
/// is Unchecked only if all its children are, Checked only if all are, else PartiallyChecked.
/// `Node` has the members of OutputNode. Items that are no output items have no check box.

/// The state that the children of the node give it; it must have some.
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

/// Brings the ancestors up to date after a change of the node; ends where nothing changes.
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

/// A click of the user.
template <typename Node>
void setBranchState(Node* node, Qt::CheckState state)
{
    carryDown(node, state);
    settleAncestors(node);
}

/// Brings every parent below the node up to date, and the node itself, bottom up, once: the same
/// states as single steps with settled ancestors after each.
template <typename Node>
void settleBranch(Node* node)
{
    const int count = node->childCount();
    for (int i = 0; i < count; ++i)
        settleBranch(static_cast<Node*>(node->child(i)));
    if (count > 0)
        node->setCheckState(0, stateOfChildren(node));
}

/// settleBranch() for every top level item below the root.
template <typename Node>
void settleTree(Node* root)
{
    for (int i = 0; i < root->childCount(); ++i)
        settleBranch(static_cast<Node*>(root->child(i)));
}

} // namespace plib
