#include "window/main/EditMenu.h"

#include "window/support/PageDock.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

namespace workbench {

namespace {
/// Returns whether the shortcut also works in panes without a page. The shortcuts of other actions,
/// such as Copy and Delete, would be surprising there.
bool worksEverywhere(const QAction* action)
{
    for (const char* name : {"undo", "redo", "duplicateRows"})
        if (action->objectName() == QLatin1String(name))
            return true;
    return false;
}
} // namespace

EditMenu::EditMenu(QMenu* menu, const QList<PageDock*>& docks, const QWidgetList& places,
                   QObject* owner)
    : QObject(owner)
    , m_menu(menu)
    , m_docks(docks)
    , m_places(places)
{
    for (PageDock* dock : docks) {
        connect(dock, &PageDock::pageChanged, this, &EditMenu::choose);
        connect(dock->toggleViewAction(), &QAction::toggled, this, &EditMenu::choose);
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { followFocus(now); });
    show();
}

/// Disconnects first, because the focus still changes while the window is destroyed.
EditMenu::~EditMenu()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void EditMenu::followFocus(const QWidget* now)
{
    for (const PageDock* dock : qAsConst(m_docks))
        if (dock != m_current && dock->isAncestorOf(now) && !dock->pageActions().isEmpty()) {
            m_used = dock;
            return choose();
        }
}

/// Chooses the page that was used last if its dock is open; otherwise, the page of another open
/// dock. A page that is being replaced is missing for a moment.
void EditMenu::choose()
{
    const auto isUsable = [](const PageDock* dock) {
        return dock && !dock->isHidden() && !dock->pageActions().isEmpty();
    };
    m_current = nullptr;
    for (const PageDock* dock : qAsConst(m_docks))
        if (isUsable(dock))
            m_current = dock;
    if (isUsable(m_used))
        m_current = m_used;
    show();
}

void EditMenu::show()
{
    for (QWidget* place : qAsConst(m_places))
        for (const QPointer<QAction>& action : qAsConst(m_everywhere))
            if (action)
                place->removeAction(action);
    m_everywhere.clear();
    m_menu->clear();
    const QList<QAction*> actions = m_current ? m_current->pageActions() : QList<QAction*>();
    m_menu->addActions(actions);
    m_menu->menuAction()->setEnabled(!actions.isEmpty());
    for (QAction* action : actions)
        if (worksEverywhere(action)) {
            m_everywhere << action;
            for (QWidget* place : qAsConst(m_places))
                place->addAction(action);
        }
}

} // namespace workbench
