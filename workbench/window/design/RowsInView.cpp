#include "window/design/RowsInView.h"

#include "window/design/DesignDock.h"
#include "window/design/DesignPage.h"
#include "window/design/PickBanner.h"
#include "window/design/RowColours.h"
#include "window/groups/GroupList.h"
#include "window/support/WindowMessages.h"

#include <AnimatorView.h>
#include <vkd_dbo_packedNames.h>
#include <vkd_qt_icon_named.h>

#include <QPushButton>
#include <QSet>
#include <QTableWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

namespace {
constexpr int TypeColumn = 1; // has no editor that covers the cell
} // namespace

RowsInView::RowsInView(const Widgets& widgets, WindowMessages* messages)
    : m_widgets(widgets)
    , m_messages(messages)
    , m_pick(new QPushButton)
{
    m_pick->setObjectName(QStringLiteral("PickGroups"));
    m_pick->setCheckable(true);
    m_pick->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/pick")));
    m_widgets.dock->addTool(m_pick);
    m_colours = new RowColours(m_widgets.view, m_widgets.dock);
    m_colours->setParent(this);
    connect(m_colours, &RowColours::toggled, this, &RowsInView::showRows);
    connect(m_colours, &RowColours::rowClicked, this, &RowsInView::selectRow);
    connect(m_pick, &QPushButton::toggled, this, &RowsInView::setPicking);
    connect(m_widgets.banner, &PickBanner::done, this, [this] { m_pick->setChecked(false); });
    connect(m_widgets.view, &AnimatorView::groupClicked, this, &RowsInView::selectRowOf);
    connect(m_widgets.view, &AnimatorView::pickedGroupsChanged, this, &RowsInView::takePicked);
    connect(m_widgets.groups, &GroupList::groupChosen, this, &RowsInView::togglePicked);
    connect(m_widgets.groups, &GroupList::groupSelected, this, [this](int group) {
        if (!isPicking()) // while picking, clicks add groups to the current row
            selectRowOf(group);
    });
    pageChanged();
}

RowsInView::~RowsInView() = default;

DesignPage* RowsInView::page() const
{
    return m_widgets.dock->page();
}

int RowsInView::currentRow() const
{
    return page() ? page()->table()->currentRow() : -1;
}

int RowsInView::changeableRow() const
{
    return currentRow() < 1 ? -1 : currentRow();
}

bool RowsInView::isPicking() const
{
    return m_widgets.view->isPicking();
}

void RowsInView::pageChanged()
{
    m_pick->setEnabled(page());
    if (!page())
        m_pick->setChecked(false);
    if (page()) {
        const QTableWidget* table = page()->table();
        connect(page(), &DesignPage::rowsChanged, this, &RowsInView::readRows);
        connect(page(), &DesignPage::pickingRequested, this, [this] { m_pick->setChecked(true); });
        connect(table, &QTableWidget::itemSelectionChanged, this, &RowsInView::showSelected);
        connect(table, &QTableWidget::currentCellChanged, this, &RowsInView::showSelected);
    }
    readRows();
}

void RowsInView::groupsChanged()
{
    m_marked.clear(); // the view may now show another model
    m_widgets.banner->setGroupsWithoutAreas(m_widgets.groups->groupsWithoutAreas());
    readRows();
}

void RowsInView::setTexts()
{
    m_colours->setTexts();
    m_pick->setText(tr("Pick &Groups"));
    m_pick->setToolTip(
        tr("While this button is pressed, a click on a group in the view or in the list "
           "of groups, or Enter in the list, adds the group to the current row or removes it."));
}

void RowsInView::setPicking(bool isPicking)
{
    m_widgets.view->setPicking(isPicking);
    m_widgets.banner->setVisible(isPicking);
    if (!isPicking)
        m_widgets.groups->setMarkedGroup(AnimatorView::NoGroup);
    showSelected();
}

/// Finds the row of each group.
void RowsInView::readRows()
{
    m_rowOf.clear();
    m_remainingRow = -1;
    const int rows = page() ? page()->table()->rowCount() : 0;
    for (int row = 0; row < rows; ++row) {
        const QVector<int> groups = page()->groups(row);
        if (groups == QVector<int>{-1} && m_remainingRow < 0)
            m_remainingRow = row;
        for (int group : groups)
            if (!m_rowOf.contains(group))
                m_rowOf[group] = row;
    }
    showRows();
    showSelected();
}

void RowsInView::showRows()
{
    QHash<int, QString> numbers;
    for (int group : m_widgets.groups->groups())
        if (const int row = rowOf(group); row >= 0)
            numbers[group] = QString::number(row + 1);
    m_widgets.groups->setRows(page() ? &numbers : nullptr);
    m_colours->show(page(), m_rowOf, m_remainingRow);
}

/// Groups without area elements are not remaining groups, because they are not designed.
int RowsInView::rowOf(int group) const
{
    const std::vector<int>& others = m_widgets.groups->groupsWithoutAreas();
    const bool hasAreas = !std::binary_search(others.begin(), others.end(), group);
    return m_rowOf.value(group, hasAreas ? m_remainingRow : -1);
}

QVector<int> RowsInView::selectedRows() const
{
    QVector<int> rows;
    const QItemSelection selection =
        page() ? page()->table()->selectionModel()->selection() : QItemSelection();
    for (const QItemSelectionRange& range : selection)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << row;
    if (rows.isEmpty() && currentRow() >= 0)
        rows << currentRow();
    return rows;
}

/// Highlights the groups of the selected rows. The row for the remaining groups represents all
/// groups with area elements that are not in any other row.
void RowsInView::showSelected()
{
    std::set<int> groups;
    for (int row : selectedRows()) {
        for (int group : page()->groups(row))
            groups.insert(group);
        if (row == m_remainingRow)
            for (int group : m_widgets.groups->groups())
                if (rowOf(group) == row)
                    groups.insert(group);
    }
    mark(groups);
    std::vector<int> picked;
    if (changeableRow() > 0) {
        const QVector<int> all = page()->groups(currentRow());
        std::copy_if(all.begin(), all.end(), std::back_inserter(picked), vkd::dbo::isPrimaryGroup);
    }
    m_widgets.view->setPickedGroups(picked);
    m_widgets.banner->setPicked(currentRow(), picked);
}

/// Does nothing if these groups are already marked: a click on a row emits several signals.
void RowsInView::mark(const std::set<int>& groups)
{
    if (std::exchange(m_marked, groups) == groups)
        return;
    m_widgets.groups->setRowGroups(QSet<int>(groups.begin(), groups.end()));
    m_widgets.view->setSelectedGroups({groups.begin(), groups.end()});
}

void RowsInView::selectRowOf(int group)
{
    selectRow(rowOf(group));
}

void RowsInView::selectRow(int row)
{
    if (!page() || row < 0 || row == currentRow())
        return;
    QTableWidget* table = page()->table();
    const int column = table->currentColumn() < 0 ? TypeColumn : table->currentColumn();
    table->setCurrentCell(row, column);
}

void RowsInView::togglePicked(int group)
{
    if (!isPicking() || changeableRow() < 0)
        return;
    const bool isInRow = page()->groups(currentRow()).contains(group);
    if (isInRow)
        remove(currentRow(), {group});
    else
        add(currentRow(), {group});
}

/// Assigns the picked groups of the view. Groups that the view does not contain stay in the row.
void RowsInView::takePicked()
{
    if (changeableRow() < 0)
        return showSelected();
    QVector<int> groups;
    for (int group : page()->groups(currentRow()))
        if (!vkd::dbo::isPrimaryGroup(group))
            groups << group;
    for (int group : m_widgets.view->pickedGroups())
        groups << group;
    setGroups(currentRow(), groups);
}

void RowsInView::add(int row, const QVector<int>& groups)
{
    setGroups(row, page()->groups(row) + groups);
}

void RowsInView::remove(int row, const QVector<int>& groups)
{
    QVector<int> left = page()->groups(row);
    for (int group : groups)
        left.removeAll(group);
    setGroups(row, left);
}

/// Reports groups that are removed from another row.
void RowsInView::setGroups(int row, const QVector<int>& groups)
{
    const QVector<int> before = page()->groups(row);
    QVector<int> moved;
    std::copy_if(groups.begin(), groups.end(), std::back_inserter(moved), [&](int group) {
        return m_rowOf.value(group) > 0 && group >= 0 &&
               !std::binary_search(before.begin(), before.end(), group);
    });
    const int from = moved.isEmpty() ? -1 : m_rowOf.value(moved.first());
    page()->setGroups(row, groups);
    if (moved.size() == 1)
        m_messages->say(tr("Group %1 is now in row %2, no longer in row %3.")
                            .arg(moved.first())
                            .arg(row + 1)
                            .arg(from + 1));
    else
        m_messages->say(moved.isEmpty()
                            ? QString()
                            : tr("%1 groups are now in row %2, no longer in other rows.")
                                  .arg(moved.size())
                                  .arg(row + 1));
}

} // namespace workbench
