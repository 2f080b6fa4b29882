#include "VKD_QT_Widgets.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace {
constexpr int FrameMargin = 3;         // pixels between the contents and the frame
constexpr double FrameStrength = 0.25; // opacity of the text colour

QColor frameColour(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlphaF(FrameStrength);
    return colour;
}

/// Fills the four sides, because QPainter draws a translucent outline pixel by pixel, which takes
/// ten times as long.
void drawFrame(QPainter& painter, const QRect& frame, const QColor& colour)
{
    const QRect sides = frame.adjusted(0, 1, 0, -1);
    painter.fillRect(frame.left(), frame.top(), frame.width(), 1, colour);
    painter.fillRect(frame.left(), frame.bottom(), frame.width(), 1, colour);
    painter.fillRect(sides.left(), sides.top(), 1, sides.height(), colour);
    painter.fillRect(sides.right(), sides.top(), 1, sides.height(), colour);
}
} // namespace

/// Paints the frame directly, because some styles stretch an image over the whole box. With nested
/// boxes, this took a third of the time needed to paint a page of settings.
///
/// Styles reserve only the ink width of the title, which is less than its advance width, so that
/// the last letter of a long title is cut off. A trailing space widens the reserved area.
void VKD_QT_GroupBox::paintEvent(QPaintEvent*)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect contents =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
    if (!option.text.isEmpty())
        option.text += QChar(QChar::Nbsp);
    option.subControls &= ~QStyle::SC_GroupBoxFrame;
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
    drawFrame(painter, rect().adjusted(0, contents.top() - FrameMargin, 0, 0),
              frameColour(palette()));
}
