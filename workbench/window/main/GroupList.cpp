#include "window/main/GroupList.h"

#include <AnimatorView.h>
#include <vkd_dbo_groups.h>
#include <vkd_h_groupContents.h>

#include <QEvent>
#include <QHeaderView>

#include <algorithm>

namespace workbench {

namespace {
enum Column { NumberColumn, TitleColumn, ContentsColumn };

int groupOf(const QTreeWidgetItem* item)
{
    return item ? item->data(NumberColumn, Qt::DisplayRole).toInt() : int(AnimatorView::NoGroup);
}
} // namespace

GroupList::GroupList(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("GroupList"));
    setColumnCount(3);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    viewport()->setMouseTracking(true);
    connect(this, &QTreeWidget::itemEntered, this, &GroupList::pointAt);
    connect(this, &QTreeWidget::currentItemChanged, this, &GroupList::pointAtCurrent);
    connect(this, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { Q_EMIT groupChosen(groupOf(item)); });
    setTexts();
}

VkdStatus GroupList::setProject(ZobHandle project)
{
    m_project = project;
    return fill();
}

void GroupList::setMarkedGroup(int group)
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = topLevelItem(row);
        const bool isMarked = groupOf(item) == group;
        for (int column = 0; column < columnCount(); ++column) {
            item->setBackground(column, isMarked ? palette().brush(QPalette::Highlight) : QBrush());
            item->setForeground(column,
                                isMarked ? palette().brush(QPalette::HighlightedText) : QBrush());
        }
        if (isMarked)
            scrollToItem(item);
    }
}

void GroupList::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        fill();
    }
}

void GroupList::focusInEvent(QFocusEvent* event)
{
    QTreeWidget::focusInEvent(event);
    pointAtCurrent();
}

void GroupList::focusOutEvent(QFocusEvent* event)
{
    QTreeWidget::focusOutEvent(event);
    pointAtCurrent();
}

bool GroupList::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        pointAtCurrent();
    return QTreeWidget::viewportEvent(event);
}

void GroupList::setTexts()
{
    setAccessibleName(tr("Groups"));
    setHeaderLabels({tr("No."), tr("Title"), tr("Contents")});
    setToolTip(tr("Groups of the model. Pointing at one lights it up in the view."));
    fitColumns();
}

VkdStatus GroupList::fill()
{
    VkdStatus status;
    const int current = groupOf(currentItem());
    clear();
    m_withoutAreas.clear();
    const auto groups = m_project.isNull() ? QVector<vkd::dbo::GroupSummary>()
                                           : vkd::dbo::readGroups(m_project, &status);
    for (const vkd::dbo::GroupSummary& group : groups) {
        auto item = new QTreeWidgetItem(this);
        item->setData(NumberColumn, Qt::DisplayRole, group.number);
        item->setTextAlignment(NumberColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setText(TitleColumn, group.title);
        item->setText(ContentsColumn, vkd::h::groupContentsText(group.contents));
        if (group.number == current)
            setCurrentItem(item);
        if (!vkd::dbo::hasAreas(group.contents))
            m_withoutAreas.push_back(group.number);
    }
    std::sort(m_withoutAreas.begin(), m_withoutAreas.end());
    fitColumns();
    return status;
}

void GroupList::fitColumns()
{
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

/// While the list does not have the focus, no group is highlighted, so that the user sees the whole
/// model.
void GroupList::pointAtCurrent()
{
    pointAt(hasFocus() ? currentItem() : nullptr);
}

void GroupList::pointAt(const QTreeWidgetItem* item)
{
    Q_EMIT groupPointed(groupOf(item));
}

} // namespace workbench
