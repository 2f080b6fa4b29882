#include "view/hittest.h"

#include <QLineF>

#include <algorithm>

namespace vkd {
namespace aniview {

namespace {
constexpr double Reach = 4.0; // pixels

double distanceTo(const QPointF& place, const QPointF& from, const QPointF& to)
{
    const QPointF way = to - from;
    const double length = QPointF::dotProduct(way, way);
    const double part = length > 0 ? QPointF::dotProduct(place - from, way) / length : 0.0;
    return QLineF(place, from + qBound(0.0, part, 1.0) * way).length();
}

bool contains(const Picture& picture, const Face& face, const QPointF& place)
{
    bool inside = false;
    for (int i = 0, before = face.count - 1; i < face.count; before = i++) {
        const QPointF& a = picture.point(face.points[i]);
        const QPointF& b = picture.point(face.points[before]);
        if ((a.y() > place.y()) == (b.y() > place.y()))
            continue;
        if (place.x() < a.x() + (place.y() - a.y()) * (b.x() - a.x()) / (b.y() - a.y()))
            inside = !inside;
    }
    return inside;
}

bool isNearEdge(const Picture& picture, const Face& face, const QPointF& place)
{
    for (int i = 0, before = face.count - 1; i < face.count; before = i++)
        if (distanceTo(place, picture.point(face.points[before]), picture.point(face.points[i])) <=
            Reach)
            return true;
    return false;
}

template <typename Meets>
int frontmost(const ModelGeometry& geometry, const Picture& picture, const Meets& meets)
{
    const std::vector<int>& order = picture.order();
    const auto found = std::find_if(order.rbegin(), order.rend(), meets);
    if (found == order.rend())
        return -1;
    const auto item = size_t(*found);
    const size_t faces = geometry.faces.size();
    return item < faces ? geometry.faces[item].group : geometry.lines[item - faces].group;
}
} // namespace

int groupAt(const ModelGeometry& geometry, const Picture& picture, const QPointF& place)
{
    const size_t faces = geometry.faces.size();
    const int exact = frontmost(geometry, picture, [&](int index) {
        const auto item = size_t(index);
        if (item < faces)
            return contains(picture, geometry.faces[item], place);
        if (item - faces >= geometry.lines.size())
            return false;
        const int* points = geometry.lines[item - faces].points;
        return distanceTo(place, picture.point(points[0]), picture.point(points[1])) <= Reach;
    });
    if (exact >= 0)
        return exact;
    return frontmost(geometry, picture, [&](int item) {
        return size_t(item) < faces && isNearEdge(picture, geometry.faces[size_t(item)], place);
    });
}

} // namespace aniview
} // namespace vkd
