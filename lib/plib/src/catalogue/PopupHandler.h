#pragma once

#include <QObject>

class GraphicalOutputTreeWidget;
class QPoint;
class VKD_QT_Action;
class VKD_QT_Menu;

/// The context menu of an output tree. The tree owns the handler, the handler the menu, and the
/// menu its actions.
class PopupHandler : public QObject
{
    Q_OBJECT

public:
    PopupHandler() = default;
    ~PopupHandler() override;

    /// Makes the menu for the tree, with an entry that closes everything if `hasCloseAll` says so,
    /// and from now on opens it where the user asks for it. To be called once at most.
    void build(GraphicalOutputTreeWidget* owner, bool hasCloseAll);
    bool isBuilt() const { return menu; }

public Q_SLOTS:
    /// Runs the menu at a place of the tree.
    void ShowContextMenu(const QPoint& pos);

private:
    void connectTree();

    VKD_QT_Menu* menu = nullptr;
    VKD_QT_Action* expandPlots = nullptr;
    VKD_QT_Action* expandLoads = nullptr;
    VKD_QT_Action* closeLoads = nullptr;
    VKD_QT_Action* closeAll = nullptr; // stays null without its entry: the tree has none on purpose
    GraphicalOutputTreeWidget* tree = nullptr;
};
