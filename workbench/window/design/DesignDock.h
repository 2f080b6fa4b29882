#pragma once

#include "window/support/AskingDock.h"

#include <QPointer>

#include <memory>

class QMenu;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace workbench {

class DesignPage;

/// The dock with the design page of the open project and its buttons. It asks before it is closed,
/// applies on Ctrl+S, and shows the actions of the page in the window's Edit menu while it has the
/// focus. DesignEditor reads and stores the rows.
class DesignDock : public AskingDock
{
    Q_OBJECT

public:
    /// The menu is not owned. It is disabled while the focus is outside the dock.
    DesignDock(QMenu* editMenu, QWidget* parent);
    ~DesignDock() override;

    /// Replaces the page, or removes it if the pointer is null.
    void setPage(std::unique_ptr<DesignPage> page);
    /// Returns null while no project is edited.
    DesignPage* page() const { return m_page; }
    /// Marks unsaved rows in the title, and enables Apply.
    void setModified(bool isModified);
    /// Adds a button to the column beside the page, above Apply. Takes ownership.
    void addTool(QWidget* button);
    void setTexts();

Q_SIGNALS:
    void applyRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void orderTabs();
    void followFocus(const QWidget* now);

    QPointer<QMenu> m_editMenu; ///< the window destroys it before the dock
    DesignPage* m_page = nullptr;
    QScrollArea* m_place;
    QVBoxLayout* m_tools;
    QPushButton* m_apply;
};

} // namespace workbench
