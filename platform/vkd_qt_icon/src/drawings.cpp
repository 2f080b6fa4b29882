#include "drawings.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace vkd {
namespace qt {

namespace {
QColor ink(const QPalette& palette)
{
    return palette.color(QPalette::WindowText);
}

QColor accent(const QPalette& palette)
{
    return palette.color(QPalette::Highlight);
}

QPen line(const QColor& color, qreal width = 1.2)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void calculator(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.setBrush(palette.color(QPalette::Base)); // it also appears on other background colours
    painter.drawRoundedRect(QRectF(3, 1.5, 10, 13), 1.5, 1.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent(palette));
    painter.drawRect(QRectF(5, 3.5, 6, 2.5));
    painter.setBrush(ink(palette));
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            painter.drawRect(QRectF(4.9 + 2.4 * column, 7.6 + 2.2 * row, 1.4, 1.2));
}

/// A mesh of two by two elements in perspective; some of them are a group.
void groups(QPainter& painter, const QPalette& palette)
{
    const auto corner = [](qreal column, qreal row) {
        return QPointF(1.5 + 5 * column + 1.5 * (2 - row), 4 + 4 * row);
    };
    painter.setPen(line(ink(palette)));
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 2; ++column) {
            painter.setBrush(column == 0 ? QBrush(accent(palette)) : QBrush(Qt::NoBrush));
            painter.drawPolygon(QPolygonF({corner(column, row), corner(column + 1, row),
                                           corner(column + 1, row + 1), corner(column, row + 1)}));
        }
}

/// Two overlapping groups, since secondary groups may share elements.
void secondaryGroups(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.drawRect(QRectF(1.5, 2, 8.5, 7.5));
    painter.drawRect(QRectF(6, 6.5, 8.5, 7.5));
    painter.setBrush(accent(palette));
    painter.drawRect(QRectF(6, 6.5, 4, 3));
}

/// The cross section of a beam with its bars.
void reinforcement(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.drawRect(QRectF(2.5, 1.5, 11, 13));
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent(palette));
    for (const QPointF& bar :
         {QPointF(5.3, 4.3), QPointF(10.7, 4.3), QPointF(5.3, 11.7), QPointF(10.7, 11.7)})
        painter.drawEllipse(bar, 1.6, 1.6);
}

/// A curve over its axis.
void plot(QPainter& painter, const QPalette& palette)
{
    QPainterPath curve(QPointF(3, 13));
    curve.cubicTo({5.5, 11}, {6.5, 3.5}, {9, 3.5});
    curve.cubicTo({11.5, 3.5}, {11.5, 9}, {14, 9});
    curve.lineTo(14, 13);
    painter.fillPath(curve, accent(palette));
    painter.setPen(line(ink(palette), 1.4));
    painter.drawPolyline(QPolygonF({{2.5, 1.5}, {2.5, 13.5}, {14.5, 13.5}}));
}

void information(QPainter& painter, const QPalette& palette)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent(palette));
    painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    painter.setPen(line(palette.color(QPalette::HighlightedText), 1.8));
    painter.drawLine(QPointF(8, 7.4), QPointF(8, 11.4));
    painter.drawPoint(QPointF(8, 4.6));
}

void drawArrow(QPainter& painter, const QPalette& palette, bool toTheRight)
{
    if (toTheRight) {
        painter.translate(16, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(line(ink(palette), 1.8));
    painter.drawLine(QPointF(2.5, 8), QPointF(13.5, 8));
    painter.drawPolyline(QPolygonF({{7, 3.5}, {2.5, 8}, {7, 12.5}}));
}

void back(QPainter& painter, const QPalette& palette)
{
    drawArrow(painter, palette, false);
}

void forward(QPainter& painter, const QPalette& palette)
{
    drawArrow(painter, palette, true);
}

void contents(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    for (int row = 0; row < 4; ++row) {
        painter.drawPoint(QPointF(2.5, 3.5 + 3 * row));
        painter.drawLine(QPointF(5, 3.5 + 3 * row), QPointF(13.5, 3.5 + 3 * row));
    }
}

/// A page with lines of text.
void text(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRect(QRectF(3, 1.5, 10, 13));
    painter.setPen(line(accent(palette), 1.4));
    for (int row = 0; row < 3; ++row)
        painter.drawLine(QPointF(5.5, 5 + 3 * row), QPointF(row == 2 ? 8.5 : 10.5, 5 + 3 * row));
}

void search(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette), 1.6));
    painter.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
    painter.drawLine(QPointF(9.8, 9.8), QPointF(14, 14));
}

/// An arrow that points at an element.
void pick(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.setBrush(accent(palette));
    painter.drawRect(QRectF(1.5, 1.5, 8, 8));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawPolygon(QPolygonF({{7, 6}, {14.5, 9}, {11, 10.5}, {9.5, 14}}));
}

/// An open folder.
void open(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.drawPolyline(
        QPolygonF({{1.5, 13}, {1.5, 3.5}, {6, 3.5}, {7.5, 5.5}, {12.5, 5.5}, {12.5, 7.5}}));
    painter.setBrush(accent(palette));
    painter.drawPolygon(QPolygonF({{1.5, 13}, {4, 7.5}, {15, 7.5}, {12.5, 13}}));
}

/// A floppy disk.
void save(QPainter& painter, const QPalette& palette)
{
    painter.setPen(line(ink(palette)));
    painter.drawPolygon(QPolygonF({{2, 2}, {11.5, 2}, {14, 4.5}, {14, 14}, {2, 14}}));
    painter.drawRect(QRectF(5, 2, 5, 3.5));
    painter.setBrush(accent(palette));
    painter.drawRect(QRectF(4.5, 8.5, 7, 5.5));
}

const struct
{
    const char* name;
    Drawing drawing;
} Drawings[] = {
    {":/icon/program/calculator", calculator},
    {":/icon/program/groups", groups},
    {":/icon/program/secondary_groups", secondaryGroups},
    {":/icon/program/reinforcement", reinforcement},
    {":/icon/program/plot", plot},
    {":/icon/program/information", information},
    {":/icon/program/back", back},
    {":/icon/program/forward", forward},
    {":/icon/program/contents", contents},
    {":/icon/program/text", text},
    {":/icon/program/search", search},
    {":/icon/program/pick", pick},
    {":/icon/program/open", open},
    {":/icon/program/save", save},
};
} // namespace

Drawing findDrawing(const QString& name)
{
    for (const auto& entry : Drawings)
        if (name == QLatin1String(entry.name))
            return entry.drawing;
    return nullptr;
}

} // namespace qt
} // namespace vkd
