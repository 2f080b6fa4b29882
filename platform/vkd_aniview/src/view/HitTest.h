#pragma once

#include "geometry/ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Finds the element at a point of the image. Consecutive elements are usually close to each other,
/// so they are combined into blocks, and the elements of a block are considered only if its
/// bounding box contains the point. Therefore, finding an element takes much less time than
/// projecting the whole geometry.
class HitTest
{
public:
    /// The geometry must outlive the object.
    explicit HitTest(const ModelGeometry& geometry);

    /// Returns the index of the part of the frontmost element at a point of the image, or -1. If
    /// there is no element at the point, a face with an edge close to the point is also considered,
    /// so that the user can click a plate seen edge-on. `isHidden` contains a flag for each part,
    /// or is empty if no group is hidden.
    int partAt(const Projection& projection, const QPointF& place,
               const std::vector<char>& isHidden) const;

private:
    struct Block
    {
        Position centre;
        Position half; ///< half of the extents along x, y, z
    };
    struct Search;

    Block blockOf(size_t begin, size_t end) const;
    size_t elementCount() const { return m_geometry.faces.size() + m_geometry.lines.size(); }

    const ModelGeometry& m_geometry;
    std::vector<Block> m_blocks;
};

} // namespace aniview
} // namespace vkd
