#pragma once

#include <QList>
#include <QObject>
#include <QSize>

class QDockWidget;
class QMainWindow;

namespace workbench {

/// Preserves the share of docks when a main window is resized; by itself, the window gives all new
/// space to its centre. If the user resizes a dock, its new size becomes its share.
class DockShares : public QObject
{
    Q_OBJECT

public:
    explicit DockShares(QMainWindow* window);

    /// Adds docks that may be tabbed. They follow the width of the window (Qt::Horizontal) while
    /// they are at its left or right, or its height while they are at its top or bottom.
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
    QSize m_size; ///< of the window when its docks were laid out last
    bool m_isRestored = false;
};

} // namespace workbench
