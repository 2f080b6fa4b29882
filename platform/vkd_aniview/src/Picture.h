#pragma once

#include "ModelGeometry.h"

#include <QRectF>

namespace vkd {
namespace aniview {

/// A geometry as one projection shows it: where its points are in the picture, and its items in the
/// order in which to draw them. Keeps its memory from one picture to the next.
class Picture
{
public:
    void update(const ModelGeometry& geometry, const Projection& projection, const QRectF& visible);

    const QPointF& point(int index) const { return m_points[size_t(index)]; }
    /// Back to front, without the items outside the visible part.
    const std::vector<int>& order() const { return m_order; }

private:
    void projectPoints(const ModelGeometry& geometry, const Projection& projection);
    void findDepths(const ModelGeometry& geometry, const Position& eye);
    void sortVisible(const ModelGeometry& geometry, const QRectF& visible);
    bool isVisible(const int* points, int count, const QRectF& visible) const;
    bool isVisible(const ModelGeometry& geometry, int item, const QRectF& visible) const;

    std::vector<QPointF> m_points;
    std::vector<float> m_depths;         // of the items, towards the viewer
    std::vector<unsigned short> m_steps; // the depths, as steps from the farthest to the nearest
    std::vector<int> m_places;
    std::vector<int> m_order;
};

} // namespace aniview
} // namespace vkd
