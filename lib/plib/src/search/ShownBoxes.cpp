#include "search/ShownBoxes.h"

#include "search/PictureWarning.h"
#include "search/PlotSearch.h"
#include "search/treeItems.h"
#include "tree/checkStates.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <VKD_QT_SignalBlocker.h>

#include <QMouseEvent>
#include <QStyle>
#include <QTreeWidget>

#include <algorithm>

namespace plib {

namespace {
using vkd::plib::widgetgraphicaloutput::PlotLevel;

/// Returns whether the plot is the item or is below it.
bool isBelow(const QTreeWidgetItem* plot, const QTreeWidgetItem* item)
{
    while (plot && plot != item)
        plot = plot->parent();
    return plot;
}

int plotCount(const QTreeWidgetItem* item, int level)
{
    if (level == PlotLevel)
        return 1;
    int count = 0;
    for (int i = 0; i < item->childCount(); ++i)
        count += plotCount(item->child(i), level + 1);
    return count;
}

int levelOf(const QTreeWidgetItem* item)
{
    int level = 0;
    for (; item->parent(); item = item->parent())
        ++level;
    return level;
}

bool isSpace(const QEvent* event)
{
    return event->type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
}

void setAll(QTreeWidgetItem* item, Qt::CheckState state)
{
    item->setCheckState(0, state);
    for (int i = 0; i < item->childCount(); ++i)
        setAll(item->child(i), state);
}
} // namespace

ShownBoxes::ShownBoxes(PlotSearch* search, QTreeWidget* tree)
    : QStyledItemDelegate(tree)
    , m_search(search)
    , m_tree(tree)
    , m_warning(new PictureWarning(tree, [this](QTreeWidgetItem* item) { set(item, Qt::Checked); }))
{
    tree->setItemDelegate(this);
}

/// Returns whether the search hides some of the plots and rows below the item.
bool ShownBoxes::isPartlyShown(const QTreeWidgetItem* item) const
{
    const int level = levelOf(item);
    if (!m_search->isActive() || level > PlotLevel)
        return false;
    int shown = 0;
    for (const PlotSearch::Hits& hits : m_search->hits())
        if (isBelow(hits.plot, item) &&
            (hits.isWhole || int(hits.rows.size()) == hits.plot->childCount()))
            ++shown;
    return shown < plotCount(item, level);
}

bool ShownBoxes::isAllChecked(const QTreeWidgetItem* item) const
{
    const auto isChecked = [item](const PlotSearch::Hits& hits) {
        const auto isRowChecked = [&hits](int row) {
            return hits.plot->child(row)->checkState(0) == Qt::Checked;
        };
        return !isBelow(hits.plot, item) || hits.plot->checkState(0) == Qt::Checked ||
               (!hits.isWhole && std::all_of(hits.rows.begin(), hits.rows.end(), isRowChecked));
    };
    return std::all_of(m_search->hits().begin(), m_search->hits().end(), isChecked);
}

/// Returns the number of pictures that a click on the item's check box would add.
int ShownBoxes::picturesOf(QTreeWidgetItem* item) const
{
    if (!isPartlyShown(item))
        return newPictures(item);
    int count = 0;
    for (const PlotSearch::Hits& hits : m_search->hits()) {
        if (!isBelow(hits.plot, item))
            continue;
        if (hits.isWhole)
            count += newPictures(hits.plot);
        for (int row : hits.rows)
            count += newPictures(hits.plot->child(row));
    }
    return count;
}

void ShownBoxes::set(QTreeWidgetItem* item, Qt::CheckState state)
{
    if (!isPartlyShown(item))
        return item->setCheckState(0, state);
    {
        const VKD_QT_SignalBlocker silence(m_tree->model());
        for (const PlotSearch::Hits& hits : m_search->hits()) {
            if (!isBelow(hits.plot, item))
                continue;
            if (hits.isWhole)
                setAll(hits.plot, state);
            for (int row : hits.rows)
                hits.plot->child(row)->setCheckState(0, state);
        }
        settleBranch(item);
    }
    const QModelIndex index = indexOf(*m_tree, item);
    Q_EMIT m_tree->model()->dataChanged(index, index, {Qt::CheckStateRole});
}

/// Recognises the same clicks and keys as the base class.
bool ShownBoxes::editorEvent(QEvent* event, QAbstractItemModel* model,
                             const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QTreeWidgetItem* item = itemOf(*m_tree, index);
    const bool isClick = isOnBox(event, option, index);
    const bool isToggle =
        isSpace(event) || (isClick && event->type() == QEvent::MouseButtonRelease);
    if (isToggle && m_warning->holdsBack(item, picturesOf(item)))
        return true;
    if (!isPartlyShown(item))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (isToggle)
        set(item, isAllChecked(item) ? Qt::Unchecked : Qt::Checked);
    else if (!isClick)
        return false;
    return true;
}

bool ShownBoxes::isOnBox(const QEvent* event, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease &&
        event->type() != QEvent::MouseButtonDblClick)
        return false;
    QStyleOptionViewItem full(option);
    initStyleOption(&full, index);
    const auto mouse = static_cast<const QMouseEvent*>(event);
    return mouse->button() == Qt::LeftButton &&
           m_tree->style()
               ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &full, m_tree)
               .contains(mouse->pos());
}

} // namespace plib
