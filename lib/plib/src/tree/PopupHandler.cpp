#include "tree/PopupHandler.h"

#include "tree/GraphicalOutputTreeWidget.h"
#include "tree/outputTreeIcons.h"

#include <vkd_language.h>
#include <VKD_QT_Action.h>
#include <VKD_QT_Menu.h>

namespace {
VKD_QT_Action* addAction(VKD_QT_Menu* menu, const QString& text, const char* name)
{
    auto action = new VKD_QT_Action(QIcon(), text, QKeySequence(), menu, name);
    menu->addAction(action);
    return action;
}
} // namespace

PopupHandler::~PopupHandler()
{
    delete menu;
}

/// Translates the menu entries in the context of the tree, because users regard the menu as part of
/// the tree.
void PopupHandler::build(GraphicalOutputTreeWidget* owner, bool hasCloseAll)
{
    tree = owner;
    menu = new VKD_QT_Menu(nullptr, nullptr);
    tree->addExpandAll(menu);
    tree->addCollapseAll(menu);
    expandPlots = addAction(menu, GraphicalOutputTreeWidget::tr("Expand plots"), "actExpandPlots");
    menu->addSeparator();
    expandLoads =
        addAction(menu, GraphicalOutputTreeWidget::tr("Expand loadcases"), "actExpandLoads");
    menu->addSeparator();
    closeLoads = addAction(menu, GraphicalOutputTreeWidget::tr("Close loadcases"), "actCloseLoads");
    if (hasCloseAll) {
        menu->addSeparator();
        closeAll =
            addAction(menu, GraphicalOutputTreeWidget::tr("Close all entries"), "actCloseAll");
    }
    connectTree();
}

void PopupHandler::setIcons(vkd::Language language)
{
    if (!expandPlots->icon().isNull())
        return;
    const QIcon rowIcon = plib::rowIcon(language);
    expandPlots->setIcon(plib::plotIcon());
    expandLoads->setIcon(rowIcon);
    closeLoads->setIcon(rowIcon);
    if (closeAll)
        closeAll->setIcon(plib::closeIcon());
}

void PopupHandler::connectTree()
{
    tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tree, &QWidget::customContextMenuRequested, this, &PopupHandler::ShowContextMenu);
    // Creating the icons takes as long as creating the menu, which users rarely open.
    const vkd::Language language = vkd::desktopLanguage();
    connect(menu, &QMenu::aboutToShow, this, [this, language] { setIcons(language); });
    connect(expandPlots, &QAction::triggered, tree, &GraphicalOutputTreeWidget::expandPlots);
    connect(expandLoads, &QAction::triggered, tree, &QTreeView::expandAll);
    connect(closeLoads, &QAction::triggered, tree, &GraphicalOutputTreeWidget::closeLoads);
    if (closeAll)
        connect(closeAll, &QAction::triggered, tree, &QTreeView::collapseAll);
}

void PopupHandler::ShowContextMenu(const QPoint& pos)
{
    menu->exec(tree->mapToGlobal(pos), nullptr);
}
