#pragma once

#include "geometry/ModelGeometry.h"

#include <QRectF>

namespace vkd {
namespace aniview {

/// The result of a projection: the positions of the points in the image, and the items in painting
/// order. update() reuses the memory of the previous result.
class Picture
{
public:
    /// `isHidden` contains a flag for each part of the geometry, or is empty if no group is
    /// hidden.
    void update(const ModelGeometry& geometry, const Projection& projection, const QRectF& visible,
                const std::vector<char>& isHidden = {});

    const QPointF& point(int index) const { return m_points[size_t(index)]; }
    /// Returns the items from back to front, except items outside the visible part.
    const std::vector<int>& order() const { return m_order; }

private:
    void projectPoints(const ModelGeometry& geometry, const Projection& projection);
    void findDepths(const ModelGeometry& geometry, const Position& eye);
    void sortVisible(const ModelGeometry& geometry, const QRectF& visible,
                     const std::vector<char>& isHidden);
    bool isVisible(const int* points, int count, const QRectF& visible) const;
    bool isVisible(const ModelGeometry& geometry, int item, const QRectF& visible) const;

    std::vector<QPointF> m_points;
    std::vector<float> m_depths;         // one for each item, increasing towards the viewer
    std::vector<unsigned short> m_steps; // depths, quantized from the farthest to the nearest item
    std::vector<int> m_places;
    std::vector<int> m_seen; // the visible items, ascending
    std::vector<int> m_order;
};

} // namespace aniview
} // namespace vkd
