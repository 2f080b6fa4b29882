#pragma once

#include <QDockWidget>

#include <functional>

namespace workbench {

/// A dock that asks before it is closed, and whose title marks unsaved changes.
class AskingDock : public QDockWidget
{
    Q_OBJECT

public:
    AskingDock(const QString& name, QWidget* parent);

    /// Sets the function that returns whether the dock may be closed. It may ask the user.
    void setMayClose(const std::function<bool()>& mayClose) { m_mayClose = mayClose; }
    /// Sets the title of the dock, without the mark for unsaved changes.
    void setTitle(const QString& title);

Q_SIGNALS:
    /// Emitted after the dock has been closed.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::function<bool()> m_mayClose;
};

} // namespace workbench
