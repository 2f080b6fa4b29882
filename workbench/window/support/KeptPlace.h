#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Shows a window where and as large as it was last, also when the program is started again. It
/// belongs to the window, which is known by its object name.
class KeptPlace : public QObject
{
    Q_OBJECT

public:
    /// To be made once the window has the size for the first time that it is shown.
    explicit KeptPlace(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_window;
};

} // namespace workbench
