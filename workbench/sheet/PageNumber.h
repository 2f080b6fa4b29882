#pragma once

#include <QSpinBox>

namespace workbench {

/// The number of a page to type. Without the focus it leaves the wheel to what is around it, and
/// the keys that turn pages are the preview's.
class PageNumber : public QSpinBox
{
    Q_OBJECT

public:
    explicit PageNumber(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace workbench
