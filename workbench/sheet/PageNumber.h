#pragma once

#include <QSpinBox>

namespace workbench {

/// A field for a page number. Without the focus it ignores the wheel; it passes the keys that turn
/// pages to the preview.
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
