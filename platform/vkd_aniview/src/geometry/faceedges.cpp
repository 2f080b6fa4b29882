#include "geometry/faceedges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vkd {
namespace aniview {

namespace {
constexpr float FoldCosine = 0.87F; // 30 degrees

// Distances by which supports and lines are drawn nearer to the viewer than the surrounding faces,
// in mean edge lengths of the faces. A support lies on face corners, and the centre of a face may
// be 0.71 edge lengths away from its corner. Lines have a smaller distance, so that a column does
// not show through its slab.
constexpr float SupportNearer = 0.75F;
constexpr float LineNearer = 0.3F;

/// One edge of a face. Sorting by edge places the faces that share an edge next to each other.
struct EdgeUse
{
    uint64_t edge;
    int face;
    int side;
};

uint64_t edgeOf(int from, int to)
{
    return uint64_t(std::min(from, to)) << 32U | uint64_t(std::max(from, to));
}

bool isBefore(const EdgeUse& use, uint64_t edge)
{
    return use.edge < edge;
}

SortPlace middleOf(const ModelGeometry& geometry, const int* points, int count)
{
    SortPlace place;
    for (int i = 0; i < count; ++i) {
        place.x += geometry.x[size_t(points[i])] / float(count);
        place.y += geometry.y[size_t(points[i])] / float(count);
        place.z += geometry.z[size_t(points[i])] / float(count);
    }
    return place;
}

Position between(const ModelGeometry& geometry, int from, int to)
{
    const auto a = size_t(from);
    const auto b = size_t(to);
    return {double(geometry.x[b]) - geometry.x[a], double(geometry.y[b]) - geometry.y[a],
            double(geometry.z[b]) - geometry.z[a]};
}

/// Computes the normal of a quad from its diagonals, which also works for warped quads, and the
/// normal of a triangle from two of its edges.
void setNormal(const ModelGeometry& geometry, Face& face)
{
    const int* points = face.points;
    const Position normal = cross(between(geometry, points[0], points[face.count / 2]),
                                  between(geometry, points[1], points[face.count - 1]));
    const double length = std::sqrt(dot(normal, normal));
    for (size_t i = 0; i < normal.size(); ++i)
        face.normal[i] = length > 1e-12 ? float(normal[i] / length) : 0.0F;
}

std::vector<EdgeUse> sortedEdges(const ModelGeometry& geometry)
{
    std::vector<EdgeUse> edges;
    edges.reserve(4 * geometry.faces.size());
    for (size_t i = 0; i < geometry.faces.size(); ++i) {
        const Face& face = geometry.faces[i];
        for (int side = 0; side < face.count; ++side)
            edges.push_back(
                {edgeOf(face.points[side], face.points[(side + 1) % face.count]), int(i), side});
    }
    std::sort(edges.begin(), edges.end(),
              [](const EdgeUse& a, const EdgeUse& b) { return a.edge < b.edge; });
    return edges;
}

bool isSmooth(const ModelGeometry& geometry, const Face& a, const Face& b)
{
    const float cosine =
        a.normal[0] * b.normal[0] + a.normal[1] * b.normal[1] + a.normal[2] * b.normal[2];
    const std::vector<GroupPart>& parts = geometry.parts;
    return parts[size_t(a.part)].group == parts[size_t(b.part)].group &&
           std::abs(cosine) > FoldCosine;
}

void markStrongEdges(ModelGeometry& geometry, const std::vector<EdgeUse>& edges)
{
    for (auto use = edges.begin(); use != edges.end();) {
        const auto next = std::find_if(
            use, edges.end(), [use](const EdgeUse& other) { return other.edge != use->edge; });
        const bool isInner =
            next - use == 2 && isSmooth(geometry, geometry.faces[size_t(use->face)],
                                        geometry.faces[size_t((use + 1)->face)]);
        for (; use != next; ++use)
            if (!isInner)
                geometry.faces[size_t(use->face)].strongEdges |= 1U << unsigned(use->side);
    }
}

float distance(const SortPlace& a, const SortPlace& b)
{
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

/// Moves a line that is an edge of faces nearer to the viewer by its distance from the centres of
/// these faces, so that the line covers the faces in every view.
void placeLine(ModelGeometry& geometry, const std::vector<EdgeUse>& edges,
               const std::vector<bool>& isOnFace, Line& line)
{
    const uint64_t edge = edgeOf(line.points[0], line.points[1]);
    SortPlace place = middleOf(geometry, line.points, 2);
    place.nearer = line.kind == LineKind::GroundSpring ? 0.0F : LineNearer * geometry.cell;
    line.meetsFace = isOnFace[size_t(line.points[0])] || isOnFace[size_t(line.points[1])];
    for (auto use = std::lower_bound(edges.begin(), edges.end(), edge, isBefore);
         use != edges.end() && use->edge == edge; ++use) {
        line.meetsFace = false;
        place.nearer =
            std::max(place.nearer, 1.05F * distance(place, geometry.sortPlaces[size_t(use->face)]));
    }
    geometry.sortPlaces.push_back(place);
}
} // namespace

void completeFaces(ModelGeometry& geometry)
{
    for (Face& face : geometry.faces) {
        setNormal(geometry, face);
        geometry.sortPlaces.push_back(middleOf(geometry, face.points, face.count));
    }
    const std::vector<EdgeUse> edges = sortedEdges(geometry);
    markStrongEdges(geometry, edges);
    std::vector<bool> isOnFace(geometry.x.size());
    for (const Face& face : geometry.faces)
        for (int i = 0; i < face.count; ++i)
            isOnFace[size_t(face.points[i])] = true;
    for (Line& line : geometry.lines)
        placeLine(geometry, edges, isOnFace, line);
    for (const Support& support : geometry.supports) {
        SortPlace place = middleOf(geometry, &support.point, 1);
        place.nearer = SupportNearer * geometry.cell;
        geometry.sortPlaces.push_back(place);
    }
}

} // namespace aniview
} // namespace vkd
