#pragma once

#include <QMetaType>

/// Commands for a view of the model. The numbers are part of the suite's interface.
enum AnimatorViewControl {
    AnimatorStandardView = 0, ///< the whole model from the direction of the standard camera
    AnimatorShowAll = 1,      ///< the whole model from the current direction
    AnimatorNoChange = 2,
    AnimatorViewXY = 3,      ///< from above, X to the right and Y upwards
    AnimatorViewXZ = 4,      ///< in the direction of -Y, X to the right and Z upwards
    AnimatorViewYZ = 5,      ///< in the direction of -X, Y to the right and Z upwards
    AnimatorStoreCamera = 6, ///< saves the current camera as the desktop's camera
    AnimatorTakeCamera = 7   ///< loads the desktop's camera
};
Q_DECLARE_METATYPE(AnimatorViewControl)
