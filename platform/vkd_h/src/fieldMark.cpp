#include "fieldMark.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace {
/// A red as light or dark as the field's ground asks for; palettes have no role for it.
QColor markColour(const QPalette& palette)
{
    const bool isLight = palette.color(QPalette::Base).lightnessF() > 0.5;
    return QColor::fromHslF(0.0, 0.85, isLight ? 0.42 : 0.68);
}

void paintFrame(QPainter* painter, const QWidget& field)
{
    painter->setPen(QPen(markColour(field.palette()), 2));
    painter->drawRoundedRect(QRectF(field.rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void paintSign(QPainter* painter, const QWidget& field, const QRectF& place)
{
    QPainterPath triangle(QPointF(place.center().x(), place.top()));
    triangle.lineTo(place.bottomRight());
    triangle.lineTo(place.bottomLeft());
    triangle.closeSubpath();
    painter->fillPath(triangle, markColour(field.palette()));
    QFont bold = field.font();
    bold.setBold(true);
    bold.setPixelSize(qMax(1, int(place.height() * 0.75)));
    painter->setFont(bold);
    painter->setPen(field.palette().color(QPalette::Base));
    painter->drawText(place, Qt::AlignHCenter | Qt::AlignBottom, QStringLiteral("!"));
}
} // namespace

void paintFieldMark(QPainter* painter, const QWidget& field, const QRect& place)
{
    const int side = fieldMarkWidth(field);
    QRectF sign(0, 0, side, side);
    sign.moveCenter(QRectF(place).center());
    sign.moveRight(place.right() + 1);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintFrame(painter, field);
    paintSign(painter, field, sign);
    painter->restore();
}

int fieldMarkWidth(const QWidget& field)
{
    return field.fontMetrics().ascent();
}
