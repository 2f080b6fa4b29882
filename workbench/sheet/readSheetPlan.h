#pragma once

#include "sheet/SheetPlan.h"

namespace workbench {

/// Reads a script with German or English keywords. A script without page setup or plots results in
/// an empty plan. Numbers out of range for a sheet are limited to drawable values.
SheetPlan readSheetPlan(const QString& script);

} // namespace workbench
