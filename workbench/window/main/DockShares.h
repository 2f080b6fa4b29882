#pragma once

#include <QList>
#include <QObject>
#include <QSize>

class QDockWidget;
class QMainWindow;

namespace workbench {

/// Lets docks keep their share of a main window when it is resized, which by itself gives all new
/// room to its centre. The user's changes of a dock are the share from then on.
class DockShares : public QObject
{
    Q_OBJECT

public:
    explicit DockShares(QMainWindow* window);

    /// Docks that may lie on each other. They follow the width of the window (Qt::Horizontal) while
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
    QSize m_size; ///< of the window, when its docks had their places last
    bool m_isRestored = false;
};

} // namespace workbench
