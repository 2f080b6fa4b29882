#pragma once

#include <vkd_language.h>

#include <QObject>

class GraphicalOutputTreeWidget;
class QPoint;
class VKD_QT_Action;
class VKD_QT_Menu;

/// The context menu of an output tree. The tree owns the handler, the handler owns the menu, and
/// the menu owns its actions.
class PopupHandler : public QObject
{
    Q_OBJECT

public:
    PopupHandler() = default;
    ~PopupHandler() override;

    /// Creates the menu for the tree and opens it on request at the mouse position. If
    /// `hasCloseAll` is true, the menu has an entry that collapses everything. Must be called at
    /// most once.
    void build(GraphicalOutputTreeWidget* owner, bool hasCloseAll);
    bool isBuilt() const { return menu; }

public Q_SLOTS:
    /// Opens the menu at a position of the tree.
    void ShowContextMenu(const QPoint& pos);

private:
    void connectTree();
    void setIcons(vkd::Language language);

    VKD_QT_Menu* menu = nullptr;
    VKD_QT_Action* expandPlots = nullptr;
    VKD_QT_Action* expandLoads = nullptr;
    VKD_QT_Action* closeLoads = nullptr;
    VKD_QT_Action* closeAll = nullptr; // intentionally null in the output tree
    GraphicalOutputTreeWidget* tree = nullptr;
};
