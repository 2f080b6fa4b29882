#pragma once

#include "vkd_a_export.h"

class QWidget;

/// Opens a modal dialog over `parent` that calculates the reinforcement of an area element from
/// bars and welded fabric, or as the minimum of a slab. `value` is in cm²/m. The dialog shows it as
/// the present value and compares the result with it, unless it is not set (-99999) or not
/// positive. OK stores the area of the chosen bars in `value`, rounded to hundredths of cm²/m; if
/// the user did not change the bars, a present value is left alone. Cancel never changes it.
/// `barDiameter` in mm is the initial diameter; if it is not set, not positive or above 1000, the
/// dialog starts with 10 mm. `index` is the database index of the project whose bars are offered.
/// `mode` belongs to the suite's interface; pass 1.
///
/// A parent that can take the bar diameter over has the dynamic property "barDiameter" (float, mm).
/// The dialog then offers to take it over, and OK with this offer chosen changes the property.
VKD_A_EXPORT void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int mode, float& value,
                                                 float barDiameter);
