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

/// Returns the axes of the picture. Global z points up, or y if the camera looks along z; then the
/// roll turns the picture counterclockwise.
ViewAxes axesOf(const Camera& camera);

/// Returns the camera that shows the whole model from a direction.
Camera lookingFrom(const Position& eye);

/// Returns whether the camera has the default zoom and centre; such a camera shows the whole model.
bool showsAll(const Camera& camera);

/// Returns the camera after the model was turned as if the user dragged its near side by so many
/// degrees to the right and down: about the vertical axis, and about the horizontal axis up to the
/// views from straight above and below.
Camera turned(const Camera& camera, double right, double down);

} // namespace aniview
} // namespace vkd
