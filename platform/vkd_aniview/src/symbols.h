#pragma once

#include "Projection.h"

#include <QColor>

class QPainter;

namespace vkd {
namespace aniview {

struct SymbolColours
{
    QColor line;
    QColor background;
};

/// A symbol of so many pixels for the held directions of a node: a block where rotations are held
/// as well, a full triangle where all displacements are, else an open triangle for each direction.
void drawSupport(QPainter& painter, const ViewAxes& axes, const QPointF& node, int fixed,
                 double size, const SymbolColours& colours);

/// A zigzag; with a ground, a stroke across its second end.
void drawSpring(QPainter& painter, const QPointF& from, const QPointF& to, bool hasGround);

/// The directions of the global axes, so many pixels long, with their names in the font of the
/// painter.
void drawTriad(QPainter& painter, const ViewAxes& axes, const QPointF& origin, double length,
               const SymbolColours& colours);

} // namespace aniview
} // namespace vkd
