#pragma once

#include <QVector>

class QTreeWidget;

namespace workbench {

/// What is to be seen of a tree: the branches that are open, the current row and the place in the
/// list. It can be given to another tree of the same rows.
class TreeSight
{
public:
    explicit TreeSight(const QTreeWidget& tree);

    /// A tree with another number of rows stays as it is.
    void give(QTreeWidget* tree) const;

private:
    QVector<bool> m_areOpen; ///< of all rows, from the top
    int m_current = -1;
    int m_top = -1;
};

} // namespace workbench
