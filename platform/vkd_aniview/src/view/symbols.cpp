#include "view/symbols.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
constexpr int AllDisplacements = 7;
constexpr int AnyRotation = 56;
constexpr double Shortest = 0.12; // shorter projected axes are drawn as points

Position axisOf(int index)
{
    Position axis{};
    axis[size_t(index)] = 1.0;
    return axis;
}

QPointF inPicture(const ViewAxes& axes, const Position& direction)
{
    return {dot(direction, axes.right), -dot(direction, axes.up)};
}

double lengthOf(const QPointF& way)
{
    return std::hypot(way.x(), way.y());
}

/// Draws a triangle with its tip at the node. The base of the triangle lies in the direction
/// opposite to the restrained direction.
void drawTriangle(QPainter& painter, const QPointF& tip, const QPointF& direction, double size)
{
    const QPointF back = tip - direction * size;
    const QPointF across = QPointF(-direction.y(), direction.x()) * (0.5 * size);
    const QPointF corners[] = {tip, back + across, back - across};
    painter.drawConvexPolygon(corners, 3);
}

void drawHeldDirections(QPainter& painter, const ViewAxes& axes, const QPointF& node, int fixed,
                        double size)
{
    for (int i = 0; i < 3; ++i) {
        if (!(fixed & 1 << i))
            continue;
        const QPointF direction = inPicture(axes, axisOf(i));
        const double length = lengthOf(direction);
        if (length < Shortest)
            painter.drawEllipse(node, 0.35 * size, 0.35 * size);
        else
            drawTriangle(painter, node, direction / length, size);
    }
}

void addArrow(QPainterPath& path, const QPointF& origin, const QPointF& way)
{
    const double length = lengthOf(way);
    const QPointF tip = origin + way;
    const QPointF back = -std::min(5.0, 0.5 * length) / length * way;
    const QPointF across(-0.5 * back.y(), 0.5 * back.x());
    path.moveTo(origin);
    path.lineTo(tip);
    path.moveTo(tip + back + across);
    path.lineTo(tip);
    path.lineTo(tip + back - across);
}

void addName(QPainterPath& path, const QPointF& middle, const QFont& font, const QString& name)
{
    QPainterPath text;
    text.addText(QPointF(), font, name);
    text.translate(middle - text.boundingRect().center());
    path.addPath(text);
}
} // namespace

void drawSupport(QPainter& painter, const ViewAxes& axes, const QPointF& node, int fixed,
                 double size, const SymbolColours& colours)
{
    const bool isClamped = fixed & AnyRotation;
    const bool isPinned = (fixed & AllDisplacements) == AllDisplacements;
    painter.setPen(QPen(colours.line, 1.2));
    painter.setBrush(isClamped || isPinned ? colours.line : colours.background);
    if (isClamped)
        painter.drawRect(QRectF(node.x() - size / 2, node.y(), size, size / 2));
    if (!isPinned) {
        drawHeldDirections(painter, axes, node, fixed, size);
        return;
    }
    const QPointF up = inPicture(axes, axisOf(2));
    const double length = lengthOf(up);
    if (!isClamped)
        drawTriangle(painter, node, length < Shortest ? QPointF(0.0, -1.0) : up / length, size);
}

void drawSpring(QPainter& painter, const QPointF& from, const QPointF& to, bool hasGround)
{
    constexpr int Turns = 6;
    const QPointF way = to - from;
    const double length = lengthOf(way);
    if (length < 1.0)
        return;
    const double width = std::min(4.0, 0.2 * length);
    const QPointF across = QPointF(-way.y(), way.x()) * (width / length);
    QPointF corners[Turns + 2];
    corners[0] = from;
    for (int i = 1; i <= Turns; ++i)
        corners[i] = from + way * ((i - 0.5) / Turns) + (i % 2 ? across : -across);
    corners[Turns + 1] = to;
    painter.drawPolyline(corners, Turns + 2);
    if (hasGround)
        painter.drawLine(to - 1.5 * across, to + 1.5 * across);
}

void drawTriad(QPainter& painter, const ViewAxes& axes, const QPointF& origin, double length,
               const SymbolColours& colours)
{
    constexpr double NameGap = 8.0;
    QPainterPath arrows;
    QPainterPath names;
    for (int i = 0; i < 3; ++i) {
        const QPointF way = inPicture(axes, axisOf(i));
        const QString name{QLatin1Char(char('X' + i))};
        if (lengthOf(way) < Shortest) {
            arrows.addEllipse(origin, 3.5, 3.5);
            addName(names, origin + QPointF(-9.0, 9.0), painter.font(), name);
            continue;
        }
        addArrow(arrows, origin, length * way);
        addName(names, origin + (length + NameGap / lengthOf(way)) * way, painter.font(), name);
    }
    const QPen halo(colours.background, 4.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.strokePath(arrows, halo);
    painter.strokePath(names, halo);
    painter.strokePath(arrows, QPen(colours.line, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.fillPath(names, colours.line);
}

} // namespace aniview
} // namespace vkd
