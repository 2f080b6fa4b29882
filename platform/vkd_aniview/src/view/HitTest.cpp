#include "view/HitTest.h"

#include "geometry/PointProjection.h"

#include <QLineF>

#include <algorithm>
#include <climits>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
constexpr double Reach = 4.0; // pixels
constexpr size_t BlockSize = 64;
// Depths are rounded to steps. Elements at the same step are painted in the order of their indexes.
constexpr double StepsInUnit = 1 << 15;

/// The points of an element.
struct Corners
{
    Corners(const ModelGeometry& geometry, size_t element)
    {
        const size_t faces = geometry.faces.size();
        isFace = element < faces;
        points = isFace ? geometry.faces[element].points : geometry.lines[element - faces].points;
        count = isFace ? geometry.faces[element].count : 2;
        part = isFace ? geometry.faces[element].part : geometry.lines[element - faces].part;
    }

    const int* points;
    int count;
    int part;
    bool isFace;
};

double distanceTo(const QPointF& place, const QPointF& from, const QPointF& to)
{
    const QPointF way = to - from;
    const double length = QPointF::dotProduct(way, way);
    const double part = length > 0 ? QPointF::dotProduct(place - from, way) / length : 0.0;
    return QLineF(place, from + qBound(0.0, part, 1.0) * way).length();
}

bool contains(const QPointF* corners, int count, const QPointF& place)
{
    bool inside = false;
    for (int i = 0, before = count - 1; i < count; before = i++) {
        const QPointF& a = corners[i];
        const QPointF& b = corners[before];
        if ((a.y() > place.y()) == (b.y() > place.y()))
            continue;
        if (place.x() < a.x() + (place.y() - a.y()) * (b.x() - a.x()) / (b.y() - a.y()))
            inside = !inside;
    }
    return inside;
}

bool isNearEdge(const QPointF* corners, int count, const QPointF& place)
{
    for (int i = 0, before = count - 1; i < count; before = i++)
        if (distanceTo(place, corners[before], corners[i]) <= Reach)
            return true;
    return false;
}

/// The frontmost of the added elements. They must be added in ascending order of their indexes.
struct Frontmost
{
    void add(int newPart, long newStep)
    {
        if (newStep < step)
            return;
        part = newPart;
        step = newStep;
    }

    int part = -1;
    long step = LONG_MIN;
};
} // namespace

/// A search for the frontmost element at one point.
struct HitTest::Search
{
    bool meets(const Block& block) const
    {
        const QPointF offset = projection.toScreen(block.centre) - place;
        const auto extent = [&block](const Position& axis) {
            return std::abs(axis[0]) * block.half[0] + std::abs(axis[1]) * block.half[1] +
                   std::abs(axis[2]) * block.half[2];
        };
        return std::abs(offset.x()) <= extent(projection.right()) + Reach &&
               std::abs(offset.y()) <= extent(projection.down()) + Reach;
    }

    void add(const ModelGeometry& geometry, size_t element)
    {
        const Corners corners(geometry, element);
        if (!isHidden.empty() && isHidden[size_t(corners.part)])
            return;
        QPointF points[4];
        for (int i = 0; i < corners.count; ++i)
            points[i] = projection.pointToScreen(size_t(corners.points[i]));
        if (corners.isFace && contains(points, corners.count, place))
            exact.add(corners.part, stepOf(geometry.sortPlaces[element]));
        else if (isNearEdge(points, corners.count, place))
            (corners.isFace ? close : exact)
                .add(corners.part, stepOf(geometry.sortPlaces[element]));
    }

    long stepOf(const SortPlace& at) const
    {
        const double depth = dot(eye, {double(at.x), double(at.y), double(at.z)});
        return std::lround(StepsInUnit * (depth + double(at.nearer)));
    }

    const PointProjection projection;
    const Position eye;
    const QPointF place;
    const std::vector<char>& isHidden;
    Frontmost exact{};
    Frontmost close{}; // among the faces with an edge close to the point
};

HitTest::HitTest(const ModelGeometry& geometry)
    : m_geometry(geometry)
{
    const size_t count = elementCount();
    m_blocks.reserve(count / BlockSize + 1);
    for (size_t begin = 0; begin < count; begin += BlockSize)
        m_blocks.push_back(blockOf(begin, std::min(begin + BlockSize, count)));
}

HitTest::Block HitTest::blockOf(size_t begin, size_t end) const
{
    const std::vector<float>* const coordinates[] = {&m_geometry.x, &m_geometry.y, &m_geometry.z};
    Block block;
    for (size_t axis = 0; axis < 3; ++axis) {
        const auto at = [&](int point) { return double((*coordinates[axis])[size_t(point)]); };
        double least = at(Corners(m_geometry, begin).points[0]);
        double most = least;
        for (size_t element = begin; element < end; ++element) {
            const Corners corners(m_geometry, element);
            for (int i = 0; i < corners.count; ++i) {
                least = std::min(least, at(corners.points[i]));
                most = std::max(most, at(corners.points[i]));
            }
        }
        block.centre[axis] = (most + least) / 2;
        block.half[axis] = (most - least) / 2;
    }
    return block;
}

int HitTest::partAt(const Projection& projection, const QPointF& place,
                    const std::vector<char>& isHidden) const
{
    Search search{{m_geometry, projection}, projection.axes().eye, place, isHidden};
    for (size_t i = 0; i < m_blocks.size(); ++i) {
        if (!search.meets(m_blocks[i]))
            continue;
        const size_t end = std::min((i + 1) * BlockSize, elementCount());
        for (size_t element = i * BlockSize; element < end; ++element)
            search.add(m_geometry, element);
    }
    return search.exact.part >= 0 ? search.exact.part : search.close.part;
}

} // namespace aniview
} // namespace vkd
