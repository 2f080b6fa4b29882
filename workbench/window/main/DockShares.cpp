#include "window/main/DockShares.h"

#include "window/support/resizeDocks.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>

#include <utility>

namespace workbench {

namespace {
int along(const QSize& size, Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? size.width() : size.height();
}
} // namespace

DockShares::DockShares(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
}

void DockShares::add(const QList<QDockWidget*>& docks, Qt::Orientation orientation)
{
    m_entries.append({docks, orientation});
    for (QDockWidget* dock : docks)
        dock->installEventFilter(this);
}

/// The window lays out its docks before this event filter receives the window's resize event. If a
/// dock is resized while the window has its old size, the user has resized the dock; otherwise the
/// layout has resized it.
bool DockShares::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched == m_window)
        // The sizes of the docks are restored before the window has its restored size.
        m_isRestored = m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
    if (event->type() != QEvent::Resize)
        return false;
    if (watched != m_window) {
        if (m_window->size() == m_size)
            for (Entry& entry : m_entries)
                takeShare(entry, m_size);
        return false;
    }
    // Without a stored size, resized docks are not attributed to the user.
    const QSize before = std::exchange(m_size, QSize());
    if (before.isValid() && !std::exchange(m_isRestored, false))
        giveShares(before);
    m_size = m_window->size();
    return false;
}

void DockShares::takeShare(Entry& entry, const QSize& window) const
{
    if (const QDockWidget* dock = shownDock(entry))
        entry.share =
            along(dock->size(), entry.orientation) / double(along(window, entry.orientation));
}

/// Computes sizes from the shares and not from the previous sizes, so that neither small windows
/// nor many small steps change the shares.
void DockShares::giveShares(const QSize& before)
{
    for (Entry& entry : m_entries) {
        QDockWidget* dock = shownDock(entry);
        if (!dock)
            continue;
        if (entry.share == 0.0)
            takeShare(entry, before);
        const int wanted = qRound(entry.share * along(m_window->size(), entry.orientation));
        resizeDocks(m_window, {dock}, {wanted}, entry.orientation);
    }
    m_window->layout()->activate(); // a later event would be attributed to the user
}

QDockWidget* DockShares::shownDock(const Entry& entry) const
{
    const Qt::DockWidgetAreas areas = entry.orientation == Qt::Horizontal
                                          ? Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea
                                          : Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea;
    for (QDockWidget* dock : entry.docks)
        if (!dock->isFloating() && !dock->visibleRegion().isEmpty() &&
            areas & m_window->dockWidgetArea(dock))
            return dock;
    return nullptr;
}

} // namespace workbench
