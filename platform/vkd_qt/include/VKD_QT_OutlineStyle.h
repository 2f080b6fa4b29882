#pragma once

#include "vkd_qt_export.h"

#include <QProxyStyle>

/// A style for QApplication::setStyle() that draws check boxes and radio buttons with outlines that
/// stand out from the background in dark palettes. It draws everything else like another style.
class VKD_QT_EXPORT VKD_QT_OutlineStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// `style` is the name of the other style.
    explicit VKD_QT_OutlineStyle(const QString& style);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
