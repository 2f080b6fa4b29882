#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <memory>
#include <vector>

namespace plib {

/// An item of an output tree that does not need widgets, for the command line and for tests. The
/// class has only the members that the tree algorithms use, with the same names as in
/// QTreeWidgetItem and in the item class of the tree widget. Parents own their children; the
/// invisible root represents the tree. A pass over many nodes spends most of its time loading them
/// from memory. Therefore, rows are small: they share the record of their plot.
class OutputNode
{
public:
    OutputNode();
    ~OutputNode();
    OutputNode(const OutputNode&) = delete;
    OutputNode& operator=(const OutputNode&) = delete;

    int isLC = -1;
    int number = 0;
    int level = 0;
    bool plain = false; ///< true for a plain item, which is not an output item

    OutputNode* addChild(const QString& text);
    void removeChild(OutputNode* child);

    /// Returns the record of the node or, if it has none, the record of its parent.
    const GraphicalOutputRecord& record() const;
    /// Copies the record, unless it is the record of the parent.
    void setRecord(const GraphicalOutputRecord& record);

    int childCount() const { return m_branch ? int(m_branch->children.size()) : 0; }
    OutputNode* child(int index) const { return m_branch->children[size_t(index)].get(); }
    /// Returns null for top-level items, like QTreeWidgetItem.
    OutputNode* parent() const { return m_parent && m_parent->m_parent ? m_parent : nullptr; }
    QString text(int) const { return m_text; }
    Qt::CheckState checkState(int) const { return Qt::CheckState(m_state); }
    void setCheckState(int, Qt::CheckState state) { m_state = quint8(state); }
    bool isExpanded() const { return m_branch && m_branch->isExpanded; }
    void setExpanded(bool expanded) { branch().isExpanded = expanded; }

private:
    /// The members that rows do not need.
    struct Branch
    {
        std::vector<std::unique_ptr<OutputNode>> children;
        std::unique_ptr<const GraphicalOutputRecord> record; // null: uses the parent's record
        bool isExpanded = false;
    };

    Branch& branch();

    quint8 m_state = Qt::Unchecked;
    std::unique_ptr<Branch> m_branch; // null for a row
    OutputNode* m_parent = nullptr;
    QString m_text;
};

/// Returns the node as an output item, or null for a plain item. There is a function with the same
/// name for tree widget items.
inline OutputNode* outputItem(OutputNode* node)
{
    return node->plain ? nullptr : node;
}

/// Returns the record of a node. There are functions with the same names for tree widget items.
inline const GraphicalOutputRecord& recordOf(const OutputNode* node)
{
    return node->record();
}

inline void setRecord(OutputNode* node, const GraphicalOutputRecord& record)
{
    node->setRecord(record);
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
