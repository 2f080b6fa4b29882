#pragma once

#include "vkd_a_export.h"

class QWidget;

/// Opens a modal dialog over `parent`. The dialog calculates the reinforcement of an area element
/// from bars and welded fabric, or as the minimum reinforcement of a slab. `value` is in cm²/m. The
/// dialog shows `value` as the current value and compares the result with it, unless `value` is not
/// set (-99999) or not positive. OK stores the calculated area in `value`, rounded to hundredths of
/// cm²/m, unless the dialog shows a current value and the user has not changed the bars. Cancel
/// never modifies `value`. `barDiameter` is the initial diameter in mm; if it is not set, not
/// positive or above 1000, the dialog starts with 10 mm. `index` is the database index of the
/// project whose bars are offered. `mode` belongs to the suite's interface and must be 1.
///
/// A parent that can use the bar diameter has the dynamic property "barDiameter" (float, mm). For
/// such a parent, the dialog contains an option to apply the diameter. If the option is selected,
/// OK changes the property.
VKD_A_EXPORT void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int mode, float& value,
                                                 float barDiameter);
