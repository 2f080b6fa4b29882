#pragma once

#include <QList>
#include <QObject>
#include <QSize>

class QDockWidget;
class QMainWindow;

namespace workbench {

/// Preserves the proportions of docks when a main window is resized; by default, the window gives
/// all additional space to its central widget. If the user resizes a dock, its share is updated to
/// the new size.
class DockShares : public QObject
{
    Q_OBJECT

public:
    explicit DockShares(QMainWindow* window);

    /// Adds docks that may be tabbed. They follow the width of the window (Qt::Horizontal) while
    /// they are docked at the left or right, or its height while they are docked at the top or
    /// bottom.
    void add(const QList<QDockWidget*>& docks, Qt::Orientation orientation);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry
    {
        QList<QDockWidget*> docks;
        Qt::Orientation orientation;
        double share = 0.0; ///< 0 until it is known
    };
    QDockWidget* shownDock(const Entry& entry) const;
    void takeShare(Entry& entry, const QSize& window) const;
    void giveShares(const QSize& before);

    QMainWindow* m_window;
    QList<Entry> m_entries;
    QSize m_size; ///< size of the window when its docks were last laid out
    bool m_isRestored = false;
};

} // namespace workbench
