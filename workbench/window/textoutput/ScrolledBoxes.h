#pragma once

#include <QScrollArea>

namespace workbench {

/// A widget for the boxes of a dialog. It scrolls if the dialog is not tall enough for the boxes;
/// the dialog cannot be narrower than the boxes.
class ScrolledBoxes : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrolledBoxes(QWidget* parent);

    /// Returns the size of the boxes. QScrollArea would limit it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace workbench
