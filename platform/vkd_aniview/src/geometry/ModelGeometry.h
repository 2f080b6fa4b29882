#pragma once

#include "geometry/Projection.h"

#include <memory>
#include <vector>

namespace vkd {
namespace aniview {

enum class LineKind { Beam, Truss, Cable, Spring, GroundSpring };
constexpr int LineKindCount = 5;

/// The elements of a primary group that belong to the same secondary groups.
struct GroupPart
{
    int group = 0;
    std::vector<int> secondary; ///< packed names, ascending

    bool operator<(const GroupPart& other) const
    {
        return group != other.group ? group < other.group : secondary < other.secondary;
    }
};

/// A quad, a triangle or an outer face of a brick; points and parts are given as indexes.
struct Face
{
    int points[4]{};
    int count = 4;
    int part = 0;
    float normal[3]{};        ///< unit vector, or zero for a face without area
    float thickness = 0.0F;   ///< metres, 0 for a brick
    unsigned strongEdges = 0; ///< one bit for each edge at the rim of a plate or at a fold
};

/// A line element or a piece of a long one.
struct Line
{
    int points[2]{};
    int part = 0;
    LineKind kind = LineKind::Beam;
    bool meetsFace = false; ///< ends at a face, but is not an edge of one
};

struct Support
{
    int point = 0;
    int fixed = 0;          ///< the bits of dbo::Boundary
    std::vector<int> parts; ///< the parts of the elements at the point
};

/// The sort key of an item: a point and a distance. The item is sorted as if it were nearer to the
/// viewer than the point by this distance, because it must cover the faces on which it lies.
struct SortPlace
{
    float x = 0.0F;
    float y = 0.0F;
    float z = 0.0F;
    float nearer = 0.0F;
};

/// The drawable form of a model. It is prepared once, so that painting only requires a projection.
/// Coordinates are relative to the centre of the bounding box. Coordinates and lengths are given in
/// multiples of `unit`, so that single precision suffices at any distance from the origin. Item
/// indexes are consecutive: first all faces, then the lines, then the supports.
struct ModelGeometry
{
    Box box;
    double unit = 1.0;     ///< metres
    float cell = 0.0F;     ///< mean edge length of the faces; 0 without faces
    float meshCell = 0.0F; ///< mean edge length in the original model

    std::vector<float> x, y, z; ///< coordinates of all points
    std::vector<Face> faces;
    std::vector<Line> lines;
    std::vector<Support> supports;
    std::vector<GroupPart> parts;      ///< parts that contain elements, ascending
    std::vector<SortPlace> sortPlaces; ///< one for each item

    std::shared_ptr<const ModelGeometry> coarser; ///< for quick painting of a large model, or null

    size_t itemCount() const { return faces.size() + lines.size() + supports.size(); }
    bool isEmpty() const { return faces.empty() && lines.empty(); }
};

/// Builds the drawable form of a model. Skips elements that refer to a missing node or to a node
/// with an invalid position.
ModelGeometry buildGeometry(const dbo::Model& model);

} // namespace aniview
} // namespace vkd
