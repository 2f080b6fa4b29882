#pragma once

#include "geometry/viewcamera.h"

#include <QPointF>
#include <QSizeF>

namespace vkd {
namespace aniview {

/// The bounding box of a model, in metres.
struct Box
{
    Position centre{};
    Position half{}; ///< half of the extents along x, y, z
};

/// The parallel projection of a model onto an image. Sizes and points of the image are in logical
/// pixels, and y points downwards. A camera is limited if its pixel coordinates would exceed the
/// valid range.
class Projection
{
public:
    Projection(const Camera& camera, const Box& box, const QSizeF& size);

    const ViewAxes& axes() const { return m_axes; }
    double scale() const { return m_scale; } ///< pixels per metre
    QPointF toScreen(const Position& position) const;

    /// Returns the scale in pixels per metre at zoom 1, at which the bounding box fills the image
    /// except for a margin.
    static double fittingScale(const ViewAxes& axes, const Box& box, const QSizeF& size);

private:
    ViewAxes m_axes;
    double m_scale;
    Position m_centre;
    QPointF m_middle;
};

/// Returns the camera with its effective centre, which is the centre of the box if the camera shows
/// the whole model.
Camera aimed(const Camera& camera, const Box& box);

/// Returns the camera after the image has been moved by the given number of pixels.
Camera panned(const Camera& camera, const Box& box, const QSizeF& size, const QPointF& by);

/// Returns the camera with its zoom multiplied by a factor, within limits. The model point at the
/// given position in the image stays there.
Camera zoomed(const Camera& camera, const Box& box, const QSizeF& size, double factor,
              const QPointF& at);

/// Rotates the camera like turned(). If the camera does not show the whole model, the scale in
/// pixels per metre is preserved.
Camera turnedInPicture(const Camera& camera, const Box& box, const QSizeF& size, double right,
                       double down);

} // namespace aniview
} // namespace vkd
