#include "vkd_qt_visibleLines.h"

namespace {
constexpr int TextShareOfLines = 30; // percent, as in light palettes
constexpr int LessDarkened = 130;    // percent, about the amount by which styles darken

int between(int base, int text, int share)
{
    return base + (text - base) * share / 100;
}
} // namespace

QPalette vkd_qt_visibleLines(QPalette palette, int shareOfText)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    if (base.lightness() < text.lightness()) {
        const QColor line(between(base.red(), text.red(), shareOfText),
                          between(base.green(), text.green(), shareOfText),
                          between(base.blue(), text.blue(), shareOfText));
        palette.setColor(QPalette::Window, line.lighter(LessDarkened));
    }
    return palette;
}

QStyleOptionViewItem vkd_qt_visibleLines(QStyleOptionViewItem option)
{
    option.palette = vkd_qt_visibleLines(option.palette, TextShareOfLines);
    return option;
}
