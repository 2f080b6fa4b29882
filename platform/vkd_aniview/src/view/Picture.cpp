#include "view/Picture.h"

#include "geometry/PointProjection.h"

#include <algorithm>

namespace vkd {
namespace aniview {

namespace {
constexpr int Steps = 1 << 16;

/// A support is hidden only if all groups at its point are hidden.
bool isInHiddenGroup(const ModelGeometry& geometry, size_t item, const std::vector<char>& isHidden)
{
    const size_t faces = geometry.faces.size();
    const size_t lines = geometry.lines.size();
    if (item < faces)
        return isHidden[size_t(geometry.faces[item].part)];
    if (item < faces + lines)
        return isHidden[size_t(geometry.lines[item - faces].part)];
    const std::vector<int>& parts = geometry.supports[item - faces - lines].parts;
    return std::all_of(parts.begin(), parts.end(),
                       [&isHidden](int part) { return isHidden[size_t(part)]; });
}
} // namespace

void Picture::update(const ModelGeometry& geometry, const Projection& projection,
                     const QRectF& visible, const std::vector<char>& isHidden)
{
    projectPoints(geometry, projection);
    findDepths(geometry, projection.axes().eye);
    sortVisible(geometry, visible, isHidden);
}

void Picture::projectPoints(const ModelGeometry& geometry, const Projection& projection)
{
    const PointProjection points(geometry, projection);
    m_points.resize(geometry.x.size());
    for (size_t i = 0; i < m_points.size(); ++i)
        m_points[i] = points.pointToScreen(i);
}

void Picture::findDepths(const ModelGeometry& geometry, const Position& eye)
{
    const auto x = float(eye[0]);
    const auto y = float(eye[1]);
    const auto z = float(eye[2]);
    m_depths.resize(geometry.sortPlaces.size());
    for (size_t i = 0; i < m_depths.size(); ++i) {
        const SortPlace& place = geometry.sortPlaces[i];
        m_depths[i] = x * place.x + y * place.y + z * place.z + place.nearer;
    }
}

/// Sorts by depth with a counting sort, which takes linear time. Invisible items are removed before
/// the sort, while the memory is read sequentially.
void Picture::sortVisible(const ModelGeometry& geometry, const QRectF& visible,
                          const std::vector<char>& isHidden)
{
    m_order.clear();
    m_seen.clear();
    m_places.assign(Steps + 1, 0);
    m_steps.resize(m_depths.size());
    if (m_depths.empty())
        return;
    const auto range = std::minmax_element(m_depths.begin(), m_depths.end());
    const float farthest = *range.first;
    const float perDepth = float(Steps - 1) / std::max(*range.second - farthest, 1e-6F);
    const int items = int(m_depths.size());
    for (int item = 0; item < items; ++item) {
        if ((!isHidden.empty() && isInHiddenGroup(geometry, size_t(item), isHidden)) ||
            !isVisible(geometry, item, visible))
            continue;
        const int step = int((m_depths[size_t(item)] - farthest) * perDepth);
        m_steps[size_t(item)] = static_cast<unsigned short>(qBound(0, step, Steps - 1));
        ++m_places[size_t(m_steps[size_t(item)]) + 1];
        m_seen.push_back(item);
    }
    for (size_t step = 1; step < m_places.size(); ++step)
        m_places[step] += m_places[step - 1];
    m_order.resize(m_seen.size());
    for (int item : m_seen)
        m_order[size_t(m_places[m_steps[size_t(item)]]++)] = item;
}

bool Picture::isVisible(const int* points, int count, const QRectF& visible) const
{
    QPointF least = point(points[0]);
    QPointF most = least;
    for (int i = 1; i < count; ++i) {
        const QPointF& p = point(points[i]);
        least = {std::min(least.x(), p.x()), std::min(least.y(), p.y())};
        most = {std::max(most.x(), p.x()), std::max(most.y(), p.y())};
    }
    return most.x() >= visible.left() && least.x() <= visible.right() &&
           most.y() >= visible.top() && least.y() <= visible.bottom();
}

bool Picture::isVisible(const ModelGeometry& geometry, int item, const QRectF& visible) const
{
    const auto faces = int(geometry.faces.size());
    const auto lines = int(geometry.lines.size());
    if (item < faces) {
        const Face& face = geometry.faces[size_t(item)];
        return isVisible(face.points, face.count, visible);
    }
    if (item < faces + lines)
        return isVisible(geometry.lines[size_t(item - faces)].points, 2, visible);
    return isVisible(&geometry.supports[size_t(item - faces - lines)].point, 1, visible);
}

} // namespace aniview
} // namespace vkd
