#include "VKD_QT_Widgets.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace {
constexpr int FrameMargin = 3;         // pixels between the contents and their frame
constexpr double FrameStrength = 0.25; // of the text's colour against the ground

QColor frameColour(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlphaF(FrameStrength);
    return colour;
}
} // namespace

/// A style may fill the whole inside with a stretched picture of a frame. With boxes in boxes that
/// was a third of the time in which a page of settings is painted.
///
/// Styles give a title the width of its ink, which is less than its letters take: long titles lose
/// the end of the last one. A blank behind it has no ink and counts up to where it begins.
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
    painter.setPen(frameColour(palette()));
    painter.drawRect(rect().adjusted(0, contents.top() - FrameMargin, -1, -1));
}
