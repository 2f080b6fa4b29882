#pragma once

#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>

namespace vkd {
namespace aniview {

using dbo::Camera;
using dbo::Position;

double dot(const Position& a, const Position& b);
Position cross(const Position& a, const Position& b);
Position along(const Position& from, double distance, const Position& direction);

/// Unit vectors in the coordinates of the model.
struct ViewAxes
{
    Position right;
    Position up;
    Position eye; ///< towards the viewer
};

/// Global z points upwards in the picture, and y where it is looked at along z; then the roll turns
/// the picture counterclockwise.
ViewAxes axesOf(const Camera& camera);

/// The camera that shows the whole model from a direction.
Camera lookingFrom(const Position& eye);

/// Whether nobody has aimed this camera: it shows the whole model, wherever that is.
bool showsAll(const Camera& camera);

/// The camera after its model was turned as if a hand drew the near side of it by so many degrees
/// to the right and down in the picture: about the vertical axis, and about the horizontal one as
/// far as straight above or below.
Camera turned(const Camera& camera, double right, double down);

} // namespace aniview
} // namespace vkd
