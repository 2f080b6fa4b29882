#pragma once

#include "vkd_dbo_export.h"

#include <QString>

namespace vkd {
namespace dbo {

/// A view of the model: where it is looked from and to, in the coordinates of the model (metres).
struct Camera
{
    double eye[3] = {1.0, -2.0, 1.0}; ///< direction from the model to the viewer, any length > 0
    double roll = 0.0;                ///< turn of the picture about the line of sight, degrees
    double centre[3] = {0, 0, 0};     ///< the point in the middle of the picture, metres
    double zoom = 1.0;                ///< above 0; 1 shows the whole model
};

/// The user's camera of the project at this database index; index 0 is the camera of the desktop,
/// which lives as long as the process. The standard camera if none was stored.
VKD_DBO_EXPORT Camera camera(int index);
VKD_DBO_EXPORT void setCamera(int index, const Camera& camera);

/// The stored camera as text. `form` 1 is that of the script, behind the keyword "STAN ": the three
/// components of the eye direction, then "ROTA" and the roll in degrees, six significant digits.
/// `form` 2 is the persistent one, which setAnimatorPerspektive() reads back bit for bit. Any other
/// form is empty.
VKD_DBO_EXPORT QString getAnimatorPerspektive(int index, int form);

/// Stores a camera given in the persistent form. A text that is no camera, a null one too, leaves
/// the stored camera as it is.
VKD_DBO_EXPORT void setAnimatorPerspektive(int index, const QString& persistent);

} // namespace dbo
} // namespace vkd
