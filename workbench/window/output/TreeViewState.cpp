#include "window/output/TreeViewState.h"

#include <QTreeWidget>

namespace workbench {

namespace {
/// Returns all rows in depth-first order.
QVector<QTreeWidgetItem*> rowsOf(const QTreeWidget& tree)
{
    QVector<QTreeWidgetItem*> rows;
    for (QTreeWidgetItemIterator row(const_cast<QTreeWidget*>(&tree)); *row; ++row)
        rows << *row;
    return rows;
}
} // namespace

TreeViewState::TreeViewState(const QTreeWidget& tree)
{
    const QVector<QTreeWidgetItem*> rows = rowsOf(tree);
    for (const QTreeWidgetItem* row : rows)
        m_areOpen << row->isExpanded();
    m_current = rows.indexOf(tree.currentItem());
    m_top = rows.indexOf(tree.itemAt(0, 0));
}

void TreeViewState::restore(QTreeWidget* tree) const
{
    const QVector<QTreeWidgetItem*> rows = rowsOf(*tree);
    if (rows.size() != m_areOpen.size())
        return;
    for (int i = 0; i < rows.size(); ++i)
        rows[i]->setExpanded(m_areOpen[i]);
    if (m_current >= 0)
        tree->setCurrentItem(rows[m_current]);
    if (m_top >= 0)
        tree->scrollToItem(rows[m_top], QAbstractItemView::PositionAtTop);
}

} // namespace workbench
