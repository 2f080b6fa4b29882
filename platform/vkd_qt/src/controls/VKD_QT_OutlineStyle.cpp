#include "VKD_QT_OutlineStyle.h"

#include "vkd_qt_visibleLines.h"

#include <QStyleOptionButton>

namespace {
/// In percent. The background may be lighter than that of a table.
constexpr int TextShareOfOutlines = 60;
} // namespace

VKD_QT_OutlineStyle::VKD_QT_OutlineStyle(const QString& style)
    : QProxyStyle(style)
{
}

void VKD_QT_OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                        QPainter* painter, const QWidget* widget) const
{
    const auto button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!isIndicator || !button)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton visible = *button;
    visible.palette = vkd_qt_visibleLines(button->palette, TextShareOfOutlines);
    QProxyStyle::drawPrimitive(element, &visible, painter, widget);
}
