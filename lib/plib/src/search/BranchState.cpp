#include "search/BranchState.h"

#include "search/treeItems.h"

#include <QScrollBar>
#include <QTreeWidget>

namespace plib {

BranchState::BranchState(const QTreeWidget& tree)
    : m_current(tree.currentItem())
    , m_down(tree.verticalScrollBar()->value())
    , m_right(tree.horizontalScrollBar()->value())
{
    for (QTreeWidgetItem* branch : branchesOf(tree))
        if (branch->isExpanded())
            m_expanded.insert(branch);
}

/// Does not scroll to the current item, which would expand the branches above it.
void BranchState::restore(QTreeWidget* tree) const
{
    for (QTreeWidgetItem* branch : branchesOf(*tree))
        branch->setExpanded(isExpanded(branch));
    const bool scrolls = tree->hasAutoScroll();
    tree->setAutoScroll(false);
    tree->setCurrentItem(m_current);
    tree->setAutoScroll(scrolls);
    tree->doItemsLayout(); // determines the ranges of the scroll bars
    tree->verticalScrollBar()->setValue(m_down);
    tree->horizontalScrollBar()->setValue(m_right);
}

} // namespace plib
