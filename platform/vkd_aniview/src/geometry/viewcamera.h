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

/// The axes of the image as unit vectors in model coordinates.
struct ViewAxes
{
    Position right;
    Position up;
    Position eye; ///< towards the viewer
};

/// Returns the axes of the image. Global z points up; if the camera looks along z, global y points
/// up. Finally, the roll rotates the image counterclockwise.
ViewAxes axesOf(const Camera& camera);

/// Returns the camera that shows the whole model from a direction.
Camera lookingFrom(const Position& eye);

/// Returns whether the camera has the default zoom and centre and therefore shows the whole model.
bool showsAll(const Camera& camera);

/// Returns the camera after the model has been rotated as if the user had dragged its near side to
/// the right and down by the given angles in degrees. The model rotates about the vertical axis and
/// about the horizontal axis. The second rotation stops at the views from directly above and below.
Camera turned(const Camera& camera, double right, double down);

} // namespace aniview
} // namespace vkd
