#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <memory>
#include <vector>

namespace plib {

/// An item of an output tree that does not need widgets, for the command line and for tests. The
/// class has only the members that the tree algorithms use, with the same names as in
/// QTreeWidgetItem and in the item class of the tree widget. Parents own their children; the
/// invisible root represents the tree. The fields that are read in every pass are first, so that a
/// pass over many nodes reads one cache line of each.
class OutputNode
{
public:
    OutputNode() = default;
    OutputNode(const OutputNode&) = delete;
    OutputNode& operator=(const OutputNode&) = delete;

    int isLC = -1;
    int number = 0;
    int level = 0;
    bool plain = false; ///< true for a plain item, which is not an output item

private:
    bool m_expanded = false;
    Qt::CheckState m_state = Qt::Unchecked;
    std::vector<std::unique_ptr<OutputNode>> m_children;

public:
    GraphicalOutputRecord record;

    OutputNode* addChild(const QString& text);
    void removeChild(OutputNode* child);

    int childCount() const { return int(m_children.size()); }
    OutputNode* child(int index) const { return m_children[size_t(index)].get(); }
    /// Returns null for top-level items, like QTreeWidgetItem.
    OutputNode* parent() const { return m_parent && m_parent->m_parent ? m_parent : nullptr; }
    QString text(int) const { return m_text; }
    Qt::CheckState checkState(int) const { return m_state; }
    void setCheckState(int, Qt::CheckState state) { m_state = state; }
    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded) { m_expanded = expanded; }

private:
    OutputNode* m_parent = nullptr;
    QString m_text;
};

/// Returns the node as an output item, or null for a plain item. There is a function with the same
/// name for tree widget items.
inline OutputNode* outputItem(OutputNode* node)
{
    return node->plain ? nullptr : node;
}

/// The operations of TreeBuilder for trees of plain nodes, which have no icons.
class OutputNodeOperations
{
public:
    explicit OutputNodeOperations(OutputNode* root)
        : m_root(root)
    {
    }

    OutputNode* create(OutputNode* parent, const QString& text, int, bool checked)
    {
        OutputNode* node = parent->addChild(text);
        if (checked)
            check(node);
        return node;
    }
    void remove(OutputNode* node) { (node->parent() ? node->parent() : m_root)->removeChild(node); }
    void complete(OutputNode*) {}
    void check(OutputNode* node) { node->setCheckState(0, Qt::Checked); }
    void plotIcon(OutputNode*) {}
    void rowIcon(OutputNode*) {}
    void expand(OutputNode* node) { node->setExpanded(true); }

private:
    OutputNode* m_root;
};

} // namespace plib
