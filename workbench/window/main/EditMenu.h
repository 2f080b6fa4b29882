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
/// open; otherwise, it contains the actions of another page. The list of outputs counts as a page.
/// The shortcuts of some actions, such as Undo, also work while the model or another pane without a
/// page has the focus.
class EditMenu : public QObject
{
    Q_OBJECT

public:
    /// `places` are the panes without a page. `owner` must destroy the object before the window
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
    const PageDock* m_used = nullptr;        ///< the dock of the page that was used last
    const PageDock* m_current = nullptr;     ///< the dock of the page whose actions are shown
    QVector<QPointer<QAction>> m_everywhere; ///< actions that were added to m_places
};

} // namespace workbench
