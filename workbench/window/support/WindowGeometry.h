#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Saves the size and position of a window in the program settings when the window is hidden, and
/// restores them in the next window with the same object name. The window owns the object.
class WindowGeometry : public QObject
{
    Q_OBJECT

public:
    /// Restores the geometry. The window must already have its default size.
    explicit WindowGeometry(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_window;
};

} // namespace workbench
