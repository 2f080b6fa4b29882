#pragma once

#include <QStyledItemDelegate>

class QTreeWidget;
class QTreeWidgetItem;

namespace plib {

class PictureWarning;
class PlotSearch;

/// Restricts the user's changes to check boxes to the plots and rows that a search shows, so that a
/// click never changes a plot that is hidden. A click on the box of a caption checks everything
/// shown below it, or unchecks it if all of it is checked. Changes by the program still affect all
/// items.
class ShownBoxes : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The search must belong to the tree, which owns the delegate.
    ShownBoxes(PlotSearch* search, QTreeWidget* tree);

    /// Checks or unchecks an item and everything shown below it. The tree reports the change like
    /// a click, once and after all states have been updated.
    void set(QTreeWidgetItem* item, Qt::CheckState state);

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    bool isOnBox(const QEvent* event, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const;
    bool isPartlyShown(const QTreeWidgetItem* item) const;
    bool isAllChecked(const QTreeWidgetItem* item) const;
    int picturesOf(QTreeWidgetItem* item) const;

    PlotSearch* m_search;
    QTreeWidget* m_tree;
    PictureWarning* m_warning;
};

} // namespace plib
