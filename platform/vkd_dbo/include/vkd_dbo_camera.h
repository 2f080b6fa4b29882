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
    double centre[3] = {0, 0, 0};     ///< the point in the middle of the picture, metres
    double zoom = 1.0;                ///< positive; 1 shows the whole model
};

/// The index of the desktop's camera, which lives as long as the process. It belongs to no project.
constexpr int DesktopCamera = 0;

/// The forms of a camera as text.
enum CameraForm { ScriptCamera = 1, PersistentCamera = 2 };

/// Returns the user's camera of the project, or the standard camera if none was stored.
VKD_DBO_EXPORT Camera camera(ZobHandle project);
VKD_DBO_EXPORT void setCamera(ZobHandle project, const Camera& camera);

/// Returns the stored camera as text. ScriptCamera is the form of the script after the keyword
/// "STAN ": the three components of the eye direction, "ROTA" and the roll in degrees, with six
/// significant digits. PersistentCamera is the form that setAnimatorPerspektive() reads back bit
/// for bit. Other forms are empty.
VKD_DBO_EXPORT QString getAnimatorPerspektive(int index, int form);

/// Stores a camera from its persistent form. A null text or one that is not a camera does not
/// change the stored camera.
VKD_DBO_EXPORT void setAnimatorPerspektive(int index, const QString& persistent);

} // namespace dbo
} // namespace vkd
