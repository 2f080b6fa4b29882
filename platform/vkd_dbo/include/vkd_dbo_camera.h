#pragma once

#include "vkd_dbo_export.h"

#include <ZobHandle.h>

#include <QString>

namespace vkd {
namespace dbo {

/// A view of the model: direction, target and zoom, in the coordinates of the model (metres).
struct Camera
{
    double eye[3] = {1.0, -2.0, 1.0}; ///< direction from the model to the viewer, any length > 0
    double roll = 0.0;                ///< rotation about the viewing direction, degrees
    double centre[3] = {0, 0, 0};     ///< model point at the centre of the image, metres
    double zoom = 1.0;                ///< positive; 1 shows the whole model
};

/// The index of the desktop's camera, which does not belong to a project and is stored only until
/// the process ends.
constexpr int DesktopCamera = 0;

/// The text formats of a camera.
enum CameraForm { ScriptCamera = 1, PersistentCamera = 2 };

/// Returns the user's camera for the project, or the standard camera if none has been stored.
VKD_DBO_EXPORT Camera camera(ZobHandle project);
VKD_DBO_EXPORT void setCamera(ZobHandle project, const Camera& camera);

/// Returns the stored camera as text. ScriptCamera is the format used in scripts after the keyword
/// "STAN ": the three components of the eye direction, "ROTA" and the roll in degrees, with six
/// significant digits. PersistentCamera is the format that setAnimatorPerspektive() reads without
/// loss of precision. Returns an empty string for any other `form`.
VKD_DBO_EXPORT QString getAnimatorPerspektive(int index, int form);

/// Stores a camera, given in its persistent format. Null or invalid text does not change the stored
/// camera.
VKD_DBO_EXPORT void setAnimatorPerspektive(int index, const QString& persistent);

} // namespace dbo
} // namespace vkd
