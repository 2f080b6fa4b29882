#pragma once

#include "geometry/Projection.h"

#include <memory>
#include <vector>

namespace vkd {
namespace aniview {

enum class LineKind { Beam, Truss, Cable, Spring, GroundSpring };
constexpr int LineKindCount = 5;

/// A quad, a triangle or an outer face of a brick; points and groups are indexes.
struct Face
{
    int points[4]{};
    int count = 4;
    int group = 0;
    float normal[3]{};        ///< unit vector, or null for a face without area
    float thickness = 0.0F;   ///< metres, 0 for a brick
    unsigned strongEdges = 0; ///< one bit for each edge that bounds a plate or a fold
};

/// A line element or a piece of a long one.
struct Line
{
    int points[2]{};
    int group = 0;
    LineKind kind = LineKind::Beam;
    bool meetsFace = false; ///< ends at a face, but is not an edge of one
};

struct Support
{
    int point = 0;
    int fixed = 0; ///< the bits of dbo::Boundary
};

/// The sort key of an item: a point, and the distance by which the item is drawn nearer to the
/// viewer than this point, because it must cover the faces that it lies on.
struct SortPlace
{
    float x = 0.0F;
    float y = 0.0F;
    float z = 0.0F;
    float nearer = 0.0F;
};

/// The drawable form of a model, prepared once, so that a picture only has to project it.
/// Coordinates and lengths are relative to the centre of the box and in multiples of `unit`, so
/// that single precision suffices at any distance from the origin. Items are numbered
/// consecutively: first all faces, then the lines, then the supports.
struct ModelGeometry
{
    Box box;
    double unit = 1.0;     ///< metres
    float cell = 0.0F;     ///< the mean edge of the faces; 0 without faces
    float meshCell = 0.0F; ///< the mean edge in the model, also in a coarser geometry of it

    std::vector<float> x, y, z; ///< coordinates of the points
    std::vector<Face> faces;
    std::vector<Line> lines;
    std::vector<Support> supports;
    std::vector<int> groups;           ///< numbers of groups with elements, ascending
    std::vector<SortPlace> sortPlaces; ///< one for each item

    std::shared_ptr<const ModelGeometry> coarser; ///< for quick pictures of a large model, or null

    size_t itemCount() const { return faces.size() + lines.size() + supports.size(); }
    bool isEmpty() const { return faces.empty() && lines.empty(); }
};

/// Builds the drawable form of a model. Skips elements with a node that does not exist or whose
/// position is unusable.
ModelGeometry buildGeometry(const dbo::Model& model);

} // namespace aniview
} // namespace vkd
