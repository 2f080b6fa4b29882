#include "window/groups/GroupList.h"

#include "window/choice/RowFilter.h"

#include <AnimatorView.h>
#include <vkd_dbo_groups.h>
#include <vkd_h_groupContents.h>

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {
enum Column { NumberColumn, RowColumn, TitleColumn, ContentsColumn, ColumnCount };
constexpr double Tint = 0.25; // proportion of the highlight colour in the current rows

QColor tinted(const QPalette& palette)
{
    const QColor& base = palette.color(QPalette::Base);
    const QColor& light = palette.color(QPalette::Highlight);
    const auto mixed = [](int a, int b) { return int(a + Tint * (b - a)); };
    return {mixed(base.red(), light.red()), mixed(base.green(), light.green()),
            mixed(base.blue(), light.blue())};
}

int groupOf(const QTreeWidgetItem* item)
{
    return item ? item->data(NumberColumn, Qt::DisplayRole).toInt() : int(AnimatorView::NoGroup);
}
} // namespace

GroupList::GroupList(QWidget* parent)
    : QTreeWidget(parent)
    , m_marked(AnimatorView::NoGroup)
{
    setObjectName(QStringLiteral("GroupList"));
    setColumnCount(ColumnCount);
    setColumnHidden(RowColumn, true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    viewport()->setMouseTracking(true);
    connect(this, &QTreeWidget::itemEntered, this, &GroupList::pointAt);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* current) {
        pointAtCurrent();
        if (current && !m_isQuiet)
            Q_EMIT groupSelected(groupOf(current));
    });
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
        if (QApplication::keyboardModifiers() == Qt::NoModifier) // a plain click
            Q_EMIT groupChosen(groupOf(item));
    });
    setTexts();
}

VkdStatus GroupList::setProject(ZobHandle project)
{
    m_project = project;
    return fill();
}

void GroupList::setMarkedGroup(int group)
{
    const int before = std::exchange(m_marked, group);
    show(m_items.value(before));
    show(m_items.value(group));
    if (QTreeWidgetItem* item = m_items.value(group))
        scrollToItem(item);
}

void GroupList::setRowGroups(const QSet<int>& groups)
{
    const QSet<int> before = std::exchange(m_rowGroups, groups);
    for (int group : before + groups)
        if (before.contains(group) != groups.contains(group))
            show(m_items.value(group));
}

void GroupList::setRows(const QHash<int, QString>* rows)
{
    m_rows = rows ? *rows : QHash<int, QString>();
    setColumnHidden(RowColumn, !rows);
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it)
        it.value()->setText(RowColumn, m_rows.value(it.key()));
    resizeColumnToContents(RowColumn);
    fitTitles();
}

void GroupList::setHiddenGroups(const QSet<int>& groups)
{
    const QSet<int> before = std::exchange(m_hidden, groups);
    for (int group : before + groups)
        if (before.contains(group) != groups.contains(group))
            show(m_items.value(group));
}

void GroupList::setFilter(const QString& filter)
{
    m_filter = filter;
    const RowFilter shown(filter, RowFilter::Numbers::AlsoInTitles);
    for (QTreeWidgetItem* item : qAsConst(m_items))
        item->setHidden(!shown.matches(groupOf(item), item->text(TitleColumn)));
}

QVector<int> GroupList::selectedGroups() const
{
    QVector<int> groups;
    for (int row = 0; row < topLevelItemCount(); ++row)
        if (topLevelItem(row)->isSelected() && !topLevelItem(row)->isHidden())
            groups << groupOf(topLevelItem(row));
    return groups;
}

std::vector<int> GroupList::groups() const
{
    std::vector<int> groups;
    groups.reserve(std::size_t(topLevelItemCount()));
    for (int row = 0; row < topLevelItemCount(); ++row)
        groups.push_back(groupOf(topLevelItem(row)));
    return groups;
}

/// Updates the colours and the font of an item, which may be null.
void GroupList::show(QTreeWidgetItem* item)
{
    if (!item)
        return;
    const int group = groupOf(item);
    const bool isMarked = group == m_marked;
    const bool isOfRow = m_rowGroups.contains(group);
    QFont bold = font();
    bold.setBold(true);
    const QBrush back = isMarked  ? palette().brush(QPalette::Highlight)
                        : isOfRow ? QBrush(tinted(palette()))
                                  : QBrush();
    const QBrush front = isMarked ? palette().brush(QPalette::HighlightedText)
                         : m_hidden.contains(group)
                             ? palette().brush(QPalette::Disabled, QPalette::Text)
                             : QBrush();
    for (int column = 0; column < columnCount(); ++column) {
        item->setBackground(column, back);
        item->setForeground(column, front);
        if (column <= RowColumn) // bold titles would not fit into their column
            item->setData(column, Qt::FontRole, isOfRow ? QVariant(bold) : QVariant());
    }
}

void GroupList::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        fill();
    }
    if (event->type() == QEvent::PaletteChange)
        for (QTreeWidgetItem* item : qAsConst(m_items))
            show(item);
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

void GroupList::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier));
    const QScopedValueRollback<bool> quiet(m_isQuiet, !isPlain);
    QTreeWidget::keyPressEvent(event);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && isPlain && currentItem())
        Q_EMIT groupChosen(groupOf(currentItem()));
}

void GroupList::mousePressEvent(QMouseEvent* event)
{
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    const QScopedValueRollback<bool> quiet(m_isQuiet, !isPlain);
    QTreeWidget::mousePressEvent(event);
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
    setHeaderLabels({tr("No."), tr("Row"), tr("Title"), tr("Contents")});
    setToolTip(
        tr("Groups of the model. The group under the mouse pointer is highlighted in the view."));
    fitColumns();
}

VkdStatus GroupList::fill()
{
    VkdStatus status;
    const int current = groupOf(currentItem());
    const QScopedValueRollback<bool> quiet(m_isQuiet, true);
    m_items.clear();
    clear();
    m_withoutAreas.clear();
    const auto groups = m_project.isNull() ? QVector<vkd::dbo::GroupSummary>()
                                           : vkd::dbo::readGroups(m_project, &status);
    const RowFilter shown(m_filter, RowFilter::Numbers::AlsoInTitles);
    for (const vkd::dbo::GroupSummary& group : groups) {
        auto item = new QTreeWidgetItem(this);
        item->setData(NumberColumn, Qt::DisplayRole, group.number);
        item->setTextAlignment(NumberColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setText(TitleColumn, group.title);
        item->setToolTip(TitleColumn, group.title);
        item->setText(ContentsColumn, vkd::h::groupContentsText(group.contents));
        item->setText(RowColumn, m_rows.value(group.number));
        item->setTextAlignment(RowColumn, Qt::AlignRight | Qt::AlignVCenter);
        m_items[group.number] = item;
        item->setHidden(!shown.matches(group.number, group.title));
        if (m_rowGroups.contains(group.number) || m_hidden.contains(group.number))
            show(item);
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
    fitTitles();
}

/// Elides long titles to leave enough width for the contents, but never elides the header of the
/// title column.
void GroupList::fitTitles()
{
    int others = qMax(sizeHintForColumn(ContentsColumn),
                      header()->sectionSizeHint(ContentsColumn)); // the last column is stretched
    for (int column : {NumberColumn, RowColumn})
        others += columnWidth(column); // 0 if the column is hidden
    const int least = header()->sectionSizeHint(TitleColumn);
    const int wanted = qMax(least, sizeHintForColumn(TitleColumn));
    setColumnWidth(TitleColumn, qBound(least, viewport()->width() - others, wanted));
}

void GroupList::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    fitTitles();
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
