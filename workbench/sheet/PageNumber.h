#pragma once

#include <QSpinBox>

namespace workbench {

/// A field for a page number. It ignores the wheel while it does not have the focus, and forwards
/// the page navigation keys to the preview.
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
