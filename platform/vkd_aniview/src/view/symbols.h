#pragma once

#include "geometry/Projection.h"

#include <QColor>

class QPainter;

namespace vkd {
namespace aniview {

struct SymbolColours
{
    QColor line;
    QColor background;
};

/// Draws a symbol of `size` pixels for the restrained directions of a node: a block if rotations
/// are restrained, a filled triangle if all displacements are restrained, otherwise an open
/// triangle for each restrained direction.
void drawSupport(QPainter& painter, const ViewAxes& axes, const QPointF& node, int fixed,
                 double size, const SymbolColours& colours);

/// Draws a spring as a zigzag line. A spring to the ground has a stroke across its second end.
void drawSpring(QPainter& painter, const QPointF& from, const QPointF& to, bool hasGround);

/// Draws the global axes with a length in pixels, and the axis names in the painter's font.
void drawTriad(QPainter& painter, const ViewAxes& axes, const QPointF& origin, double length,
               const SymbolColours& colours);

} // namespace aniview
} // namespace vkd
