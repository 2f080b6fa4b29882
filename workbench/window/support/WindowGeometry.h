#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Saves size and position of a window in the settings of the program when it is hidden, and
/// restores them in the next window with the same object name. The window is the owner.
class WindowGeometry : public QObject
{
    Q_OBJECT

public:
    /// Restores the geometry. The window must already have the size for its first appearance.
    explicit WindowGeometry(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_window;
};

} // namespace workbench
