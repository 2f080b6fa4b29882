#include "window/support/PageDock.h"

#include <QAction>
#include <QCloseEvent>

namespace workbench {

PageDock::PageDock(const QString& name, QWidget* parent)
    : QDockWidget(parent)
{
    setObjectName(name);
}

void PageDock::setTitle(const QString& title)
{
    setWindowTitle(title + QLatin1String("[*]"));
}

/// If the dock stays open, the action that toggles it must stay checked.
void PageDock::closeEvent(QCloseEvent* event)
{
    if (m_mayClose && !m_mayClose()) {
        event->ignore();
        return toggleViewAction()->setChecked(true);
    }
    QDockWidget::closeEvent(event);
    Q_EMIT closed();
}

} // namespace workbench
