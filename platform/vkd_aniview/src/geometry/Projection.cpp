#include "geometry/Projection.h"

#include <algorithm>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
constexpr double Margin = 28.0; // pixels; leaves space for the support symbols
constexpr double LeastZoom = 0.05;
constexpr double MostZoom = 500.0;
// Stored cameras are limited to this range. Outside this range, points would jump by pixels because
// of single precision.
constexpr double LeastStoredZoom = 1e-3;
constexpr double MostStoredZoom = 1e4;
constexpr double FarthestCentre = 1e3; // times the size of the model

double radiusOf(const Box& box)
{
    return std::max(std::sqrt(dot(box.half, box.half)), 1e-3); // the model may be a single point
}

double halfWidth(const Box& box, const Position& axis)
{
    return std::abs(axis[0]) * box.half[0] + std::abs(axis[1]) * box.half[1] +
           std::abs(axis[2]) * box.half[2];
}

double fitting(double length, double half, double radius)
{
    const double room = length - 2.0 * std::min(Margin, length / 8.0);
    return room / (2.0 * std::max(half, 0.05 * radius));
}

double zoomInEffect(const Camera& camera)
{
    return qBound(LeastStoredZoom, camera.zoom, MostStoredZoom);
}

double pixelsPerMetre(const Camera& camera, const ViewAxes& axes, const Box& box,
                      const QSizeF& size)
{
    return zoomInEffect(camera) * Projection::fittingScale(axes, box, size);
}
} // namespace

Projection::Projection(const Camera& camera, const Box& box, const QSizeF& size)
    : m_axes(axesOf(camera))
    , m_scale(pixelsPerMetre(camera, m_axes, box, size))
    , m_middle(size.width() / 2.0, size.height() / 2.0)
{
    const Camera used = aimed(camera, box);
    const double farthest = FarthestCentre * radiusOf(box);
    for (size_t i = 0; i < m_centre.size(); ++i)
        m_centre[i] = box.centre[i] + qBound(-farthest, used.centre[i] - box.centre[i], farthest);
}

QPointF Projection::toScreen(const Position& position) const
{
    const Position offset = along(position, -1.0, m_centre);
    return m_middle + m_scale * QPointF(dot(offset, m_axes.right), -dot(offset, m_axes.up));
}

double Projection::fittingScale(const ViewAxes& axes, const Box& box, const QSizeF& size)
{
    const double radius = radiusOf(box);
    return std::min(fitting(std::max(size.width(), 1.0), halfWidth(box, axes.right), radius),
                    fitting(std::max(size.height(), 1.0), halfWidth(box, axes.up), radius));
}

Camera aimed(const Camera& camera, const Box& box)
{
    Camera result = camera;
    if (showsAll(camera))
        std::copy(box.centre.begin(), box.centre.end(), result.centre);
    return result;
}

Camera panned(const Camera& camera, const Box& box, const QSizeF& size, const QPointF& by)
{
    const ViewAxes axes = axesOf(camera);
    const double scale = pixelsPerMetre(camera, axes, box, size);
    Camera result = aimed(camera, box);
    for (size_t i = 0; i < 3; ++i)
        result.centre[i] += (by.y() * axes.up[i] - by.x() * axes.right[i]) / scale;
    return result;
}

Camera zoomed(const Camera& camera, const Box& box, const QSizeF& size, double factor,
              const QPointF& at)
{
    const double old = zoomInEffect(camera);
    const double zoom = qBound(std::min(LeastZoom, old), old * factor, std::max(MostZoom, old));
    const QPointF fromMiddle = at - QPointF(size.width() / 2.0, size.height() / 2.0);
    Camera result = panned(camera, box, size, (old / zoom - 1.0) * fromMiddle);
    result.zoom = zoom;
    return result;
}

Camera turnedInPicture(const Camera& camera, const Box& box, const QSizeF& size, double right,
                       double down)
{
    Camera result = turned(camera, right, down);
    if (!showsAll(camera))
        result.zoom = zoomInEffect(camera) * Projection::fittingScale(axesOf(camera), box, size) /
                      Projection::fittingScale(axesOf(result), box, size);
    return result;
}

} // namespace aniview
} // namespace vkd
