#include "vkd_qt_visibleLines.h"

namespace {
constexpr int ShareOfText = 30;   // percent, as in light palettes
constexpr int LessDarkened = 130; // percent, about the amount by which styles darken

int between(int base, int text)
{
    return base + (text - base) * ShareOfText / 100;
}
} // namespace

QStyleOptionViewItem vkd_qt_visibleLines(QStyleOptionViewItem option)
{
    const QColor base = option.palette.color(QPalette::Base);
    const QColor text = option.palette.color(QPalette::Text);
    if (base.lightness() < text.lightness()) {
        const QColor line(between(base.red(), text.red()), between(base.green(), text.green()),
                          between(base.blue(), text.blue()));
        option.palette.setColor(QPalette::Window, line.lighter(LessDarkened));
    }
    return option;
}
