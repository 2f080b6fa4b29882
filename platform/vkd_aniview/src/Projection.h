#pragma once

#include "viewcamera.h"

#include <QPointF>
#include <QSizeF>

namespace vkd {
namespace aniview {

/// The room that a model takes, metres.
struct Box
{
    Position centre{};
    Position half{}; ///< half its lengths along x, y, z
};

/// The parallel projection of a model into a picture, whose size and points are in logical pixels
/// with y downwards. Cameras that would leave the range of pixels are held within it.
class Projection
{
public:
    Projection(const Camera& camera, const Box& box, const QSizeF& size);

    const ViewAxes& axes() const { return m_axes; }
    double scale() const { return m_scale; } ///< pixels to a metre
    QPointF toScreen(const Position& position) const;

    /// The pixels to a metre at zoom 1: the box fills the picture but for a margin.
    static double fittingScale(const ViewAxes& axes, const Box& box, const QSizeF& size);

private:
    ViewAxes m_axes;
    double m_scale;
    Position m_centre;
    QPointF m_middle;
};

/// The camera with the centre that it has in effect.
Camera aimed(const Camera& camera, const Box& box);

/// The camera after the picture was moved by so many pixels.
Camera panned(const Camera& camera, const Box& box, const QSizeF& size, const QPointF& by);

/// The camera with so many times its zoom, within limits; the point at this place of the picture
/// stays there.
Camera zoomed(const Camera& camera, const Box& box, const QSizeF& size, double factor,
              const QPointF& at);

/// As turned(), and an aimed camera keeps its pixels to a metre.
Camera turnedInPicture(const Camera& camera, const Box& box, const QSizeF& size, double right,
                       double down);

} // namespace aniview
} // namespace vkd
