#pragma once

#include "geometry/ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Projects positions in the unit of a geometry to the image.
class PointProjection
{
public:
    PointProjection(const ModelGeometry& geometry, const Projection& projection)
        : m_geometry(geometry)
        , m_middle(projection.toScreen(geometry.box.centre))
    {
        const double scale = projection.scale() * geometry.unit;
        for (size_t i = 0; i < 3; ++i) {
            m_right[i] = scale * projection.axes().right[i];
            m_down[i] = -scale * projection.axes().up[i];
        }
    }

    QPointF toScreen(const Position& position) const
    {
        return {m_middle.x() + dot(m_right, position), m_middle.y() + dot(m_down, position)};
    }
    /// Returns the position of a geometry point in the image.
    QPointF pointToScreen(size_t index) const
    {
        return toScreen({double(m_geometry.x[index]), double(m_geometry.y[index]),
                         double(m_geometry.z[index])});
    }
    /// These functions return the axes of the image, in pixels per unit of the geometry.
    const Position& right() const { return m_right; }
    const Position& down() const { return m_down; }

private:
    const ModelGeometry& m_geometry;
    QPointF m_middle;
    Position m_right;
    Position m_down;
};

} // namespace aniview
} // namespace vkd
