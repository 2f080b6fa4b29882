#pragma once

#include <QVector>

class QTreeWidget;

namespace workbench {

/// The state of a tree view: expanded branches, current row and scroll position. It can be restored
/// in another tree with the same rows.
class TreeViewState
{
public:
    explicit TreeViewState(const QTreeWidget& tree);

    /// Restores the state. A tree with a different number of rows is not changed.
    void restore(QTreeWidget* tree) const;

private:
    QVector<bool> m_areOpen; ///< whether each row is expanded, from the top
    int m_current = -1;
    int m_top = -1;
};

} // namespace workbench
