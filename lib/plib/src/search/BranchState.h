#pragma once

#include <QSet>

class QTreeWidget;
class QTreeWidgetItem;

namespace plib {

/// The state of an output tree's view: the expanded captions and plots, the current item and the
/// scroll position. It can be restored as long as the items exist.
class BranchState
{
public:
    explicit BranchState(const QTreeWidget& tree);

    bool isExpanded(QTreeWidgetItem* item) const { return m_expanded.contains(item); }
    void restore(QTreeWidget* tree) const;

private:
    QSet<QTreeWidgetItem*> m_expanded;
    QTreeWidgetItem* m_current;
    int m_down;
    int m_right;
};

} // namespace plib
