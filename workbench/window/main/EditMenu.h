#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidgetList>

class QAction;
class QMenu;

namespace workbench {

class PageDock;

/// The Edit menu. It contains the actions of the page that was used last, as long as its dock is
/// open. The shortcuts of actions that do not depend on the selection in another pane, such as
/// Undo, also work while the focus is in the model or in another pane without a page.
class EditMenu : public QObject
{
    Q_OBJECT

public:
    /// `places` are the panes without a page. The owner must destroy the object before the window
    /// destroys the widgets.
    EditMenu(QMenu* menu, const QList<PageDock*>& docks, const QWidgetList& places, QObject* owner);
    ~EditMenu() override;

private:
    void followFocus(const QWidget* now);
    void choose();
    void show();

    QMenu* m_menu;
    QList<PageDock*> m_docks;
    QWidgetList m_places;
    PageDock* m_current = nullptr;
    QVector<QPointer<QAction>> m_everywhere; ///< actions that were added to the places
};

} // namespace workbench
