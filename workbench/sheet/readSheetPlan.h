#pragma once

#include "SheetPlan.h"

namespace workbench {

/// Reads a script with German or English keywords. A text without a page setup or without plots
/// gives an empty plan; numbers that no sheet can have are held within what can be drawn.
SheetPlan readSheetPlan(const QString& script);

} // namespace workbench
