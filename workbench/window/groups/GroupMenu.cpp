#include "window/groups/GroupMenu.h"

#include "window/design/RowsInView.h"
#include "window/groups/GroupList.h"

#include <AnimatorView.h>

#include <QMenu>

namespace workbench {

GroupMenu::GroupMenu(AnimatorView* view, GroupList* groups, RowsInView* rows)
    : QObject(view)
    , m_view(view)
    , m_groups(groups)
    , m_rows(rows)
{
    m_groups->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_groups, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
        open(m_groups->selectedGroups(), m_groups->viewport()->mapToGlobal(place));
    });
    connect(m_view, &AnimatorView::menuRequested, this, [this](int group, const QPoint& place) {
        open(group == AnimatorView::NoGroup ? QVector<int>() : QVector<int>{group}, place);
    });
}

void GroupMenu::showAll()
{
    setHidden({});
}

void GroupMenu::open(const QVector<int>& groups, const QPoint& place)
{
    QMenu menu(m_view->window());
    menu.setObjectName(QStringLiteral("GroupMenu"));
    const QSet<int> chosen(groups.begin(), groups.end());
    addRowActions(&menu, groups);
    QAction* hide = menu.addAction(tr("&Hide"));
    connect(hide, &QAction::triggered, this, [this, chosen] { setHidden(m_hidden + chosen); });
    QAction* isolate = menu.addAction(tr("Show &Only These"));
    connect(isolate, &QAction::triggered, this, [this, chosen] {
        const std::vector<int> all = m_groups->groups();
        setHidden(QSet<int>(all.begin(), all.end()) - chosen);
    });
    for (QAction* action : {hide, isolate})
        action->setEnabled(!groups.isEmpty());
    QAction* all = menu.addAction(tr("Show &All"));
    all->setEnabled(!m_hidden.isEmpty());
    connect(all, &QAction::triggered, this, &GroupMenu::showAll);
    menu.exec(place);
}

/// The actions are missing while no rows are edited.
void GroupMenu::addRowActions(QMenu* menu, const QVector<int>& groups)
{
    const int row = m_rows->changeableRow();
    if (groups.size() == 1 && m_rows->rowOf(groups.first()) >= 0)
        connect(menu->addAction(tr("Select &Row %1").arg(m_rows->rowOf(groups.first()) + 1)),
                &QAction::triggered, this, [this, groups] { m_rows->selectRowOf(groups.first()); });
    if (row > 0 && !groups.isEmpty()) {
        connect(menu->addAction(tr("A&dd to Row %1").arg(row + 1)), &QAction::triggered, this,
                [this, row, groups] { m_rows->add(row, groups); });
        connect(menu->addAction(tr("Re&move from Row %1").arg(row + 1)), &QAction::triggered, this,
                [this, row, groups] { m_rows->remove(row, groups); });
    }
    menu->addSeparator();
}

void GroupMenu::setHidden(const QSet<int>& groups)
{
    m_hidden = groups;
    m_groups->setHiddenGroups(groups);
    m_view->setHiddenGroups({groups.begin(), groups.end()});
}

} // namespace workbench
