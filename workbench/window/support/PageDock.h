#pragma once

#include <QDockWidget>

#include <functional>

namespace workbench {

/// A dock with a page of the open project. It can ask for confirmation before it is closed, its
/// title marks unsaved changes, and it provides actions of the page for the Edit menu.
class PageDock : public QDockWidget
{
    Q_OBJECT

public:
    PageDock(const QString& name, QWidget* parent);

    /// Sets a function that returns whether the dock may be closed, and that may ask the user.
    void setMayClose(const std::function<bool()>& mayClose) { m_mayClose = mayClose; }
    /// Sets the title of the dock, without the mark for unsaved changes.
    void setTitle(const QString& title);
    /// Returns the actions of the page, or none if there is no page.
    virtual QList<QAction*> pageActions() const = 0;

Q_SIGNALS:
    /// Emitted after the dock has been closed.
    void closed();
    /// Emitted after the page in the dock has been replaced or removed.
    void pageChanged();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::function<bool()> m_mayClose;
};

} // namespace workbench
