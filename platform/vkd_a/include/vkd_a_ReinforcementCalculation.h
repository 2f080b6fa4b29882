#pragma once

#include "vkd_a_export.h"

class QWidget;

/// Lets the user find the reinforcement of an area element from bars and their spacing, in a modal
/// dialog over `parent`. `value` is in cm²/m; it is compared with and shown as the present value,
/// unless it is not set (-99999) or not positive. OK puts the area of the chosen bars there,
/// rounded to hundredths of cm²/m, but leaves a present value whose bars were not changed; Cancel
/// leaves it in any case. `barDiameter` in mm is the diameter to begin with; one that is not set,
/// not positive or above 1000 makes it 10 mm. `index` is the database index of the project that
/// offers the bars. `mode` is part of the suite's interface; 1 is to be passed.
VKD_A_EXPORT void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int mode, float& value,
                                                 float barDiameter);
