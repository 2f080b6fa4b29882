#include "GroupList.h"

#include <AnimatorView.h>
#include <vkd_dbo_groups.h>

#include <QEvent>
#include <QHeaderView>

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
    connect(this, &QTreeWidget::currentItemChanged, this, &GroupList::pointAt);
    connect(this, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { Q_EMIT groupChosen(groupOf(item)); });
    setTexts();
}

void GroupList::setProject(int index)
{
    m_index = index;
    fill();
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

bool GroupList::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        pointAt(currentItem());
    return QTreeWidget::viewportEvent(event);
}

void GroupList::setTexts()
{
    setAccessibleName(tr("Groups"));
    setHeaderLabels({tr("No."), tr("Title"), tr("Contents")});
    setToolTip(tr("Groups of the model. Pointing at one lights it up in the view."));
    fitColumns();
}

void GroupList::fill()
{
    const auto contentsText = [](const vkd::dbo::GroupContents& contents) {
        QStringList parts;
        const auto add = [&parts](int count, const QString& text) {
            if (count)
                parts << text.arg(count);
        };
        add(contents.quads, tr("Quads %1"));
        add(contents.beams, tr("Beams %1"));
        add(contents.trusses, tr("Trusses %1"));
        add(contents.cables, tr("Cables %1"));
        add(contents.springs, tr("Springs %1"));
        add(contents.bricks, tr("Solids %1"));
        return parts.join(QLatin1String(", "));
    };
    const int current = groupOf(currentItem());
    clear();
    const auto groups =
        m_index < 1 ? QVector<vkd::dbo::GroupSummary>() : vkd::dbo::readGroups(m_index);
    for (const vkd::dbo::GroupSummary& group : groups) {
        auto item = new QTreeWidgetItem(this);
        item->setData(NumberColumn, Qt::DisplayRole, group.number);
        item->setTextAlignment(NumberColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setText(TitleColumn, group.title);
        item->setText(ContentsColumn, contentsText(group.contents));
        if (group.number == current)
            setCurrentItem(item);
    }
    fitColumns();
}

void GroupList::fitColumns()
{
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

void GroupList::pointAt(const QTreeWidgetItem* item)
{
    Q_EMIT groupPointed(groupOf(item));
}

} // namespace workbench
