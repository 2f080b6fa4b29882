#pragma once

#include <QMetaType>

/// What a view of the model is told to do. The numbers are part of the suite's interface.
enum AnimatorViewControl {
    AnimatorStandardView = 0, ///< the whole model from the direction of the standard camera
    AnimatorShowAll = 1,      ///< the whole model from where it is looked at now
    AnimatorNoChange = 2,
    AnimatorViewXY = 3,      ///< from above, X to the right and Y upwards
    AnimatorViewXZ = 4,      ///< against Y, X to the right and Z upwards
    AnimatorViewYZ = 5,      ///< against X, Y to the right and Z upwards
    AnimatorStoreCamera = 6, ///< the current camera becomes that of the desktop
    AnimatorTakeCamera = 7   ///< the camera of the desktop becomes the current one
};
Q_DECLARE_METATYPE(AnimatorViewControl)
