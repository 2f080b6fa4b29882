#pragma once

#include "geometry/viewcamera.h"

#include <QPointF>
#include <QSizeF>

namespace vkd {
namespace aniview {

/// The bounding box of a model, metres.
struct Box
{
    Position centre{};
    Position half{}; ///< half the lengths along x, y, z
};

/// The parallel projection of a model into a picture. Sizes and points of the picture are in
/// logical pixels, y points down. Cameras that would leave the valid range of pixels are limited to
/// it.
class Projection
{
public:
    Projection(const Camera& camera, const Box& box, const QSizeF& size);

    const ViewAxes& axes() const { return m_axes; }
    double scale() const { return m_scale; } ///< pixels per metre
    QPointF toScreen(const Position& position) const;

    /// Returns the pixels per metre at zoom 1, where the box fills the picture except for a margin.
    static double fittingScale(const ViewAxes& axes, const Box& box, const QSizeF& size);

private:
    ViewAxes m_axes;
    double m_scale;
    Position m_centre;
    QPointF m_middle;
};

/// Returns the camera with its effective centre: that of the box if the camera shows the whole
/// model.
Camera aimed(const Camera& camera, const Box& box);

/// Returns the camera after the picture was moved by so many pixels.
Camera panned(const Camera& camera, const Box& box, const QSizeF& size, const QPointF& by);

/// Returns the camera with its zoom multiplied by a factor, within limits; the model point at this
/// position of the picture stays there.
Camera zoomed(const Camera& camera, const Box& box, const QSizeF& size, double factor,
              const QPointF& at);

/// Turns like turned(); a camera that does not show the whole model keeps its pixels per metre.
Camera turnedInPicture(const Camera& camera, const Box& box, const QSizeF& size, double right,
                       double down);

} // namespace aniview
} // namespace vkd
