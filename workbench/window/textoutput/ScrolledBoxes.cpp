#include "window/textoutput/ScrolledBoxes.h"

#include <QScrollBar>

namespace workbench {

ScrolledBoxes::ScrolledBoxes(QWidget* parent)
    : QScrollArea(parent)
{
    setWidget(new QWidget(this));
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize ScrolledBoxes::sizeHint() const
{
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

QSize ScrolledBoxes::minimumSizeHint() const
{
    const int bar = verticalScrollBar()->sizeHint().width();
    return {widget()->minimumSizeHint().width() + bar, QScrollArea::minimumSizeHint().height()};
}

} // namespace workbench
