#pragma once

#include "Projection.h"

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
    unsigned strongEdges = 0; ///< a bit for each edge that bounds a plate or a fold
};

/// A line element or a piece of a long one.
struct Line
{
    int points[2]{};
    int group = 0;
    LineKind kind = LineKind::Beam;
    bool meetsFace = false; ///< ends at faces, but does not lie on their edges
};

struct Support
{
    int point = 0;
    int fixed = 0; ///< as dbo::Boundary
};

/// By what an item is sorted: a place, and how much it is nearer to the viewer than this place
/// because it has to cover the faces that it lies on.
struct SortPlace
{
    float x = 0.0F;
    float y = 0.0F;
    float z = 0.0F;
    float nearer = 0.0F;
};

/// What is drawn of a model, prepared once so that a picture needs no more than to project it.
/// Coordinates and lengths are in units of `unit` from the centre of the box, which keeps them
/// exact enough in single precision wherever the model stands. An item is a face, a line or a
/// support, counted through in this order.
struct ModelGeometry
{
    Box box;
    double unit = 1.0; ///< metres
    float cell = 0.0F; ///< the mean edge of the faces; 0 without faces

    std::vector<float> x, y, z; ///< of the points
    std::vector<Face> faces;
    std::vector<Line> lines;
    std::vector<Support> supports;
    std::vector<int> groups;           ///< the numbers of those that have elements, ascending
    std::vector<SortPlace> sortPlaces; ///< of the items

    bool isEmpty() const { return faces.empty() && lines.empty(); }
};

/// Elements are left out that name a node that is not there or that stands nowhere.
ModelGeometry buildGeometry(const dbo::Model& model);

} // namespace aniview
} // namespace vkd
