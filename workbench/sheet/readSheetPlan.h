#pragma once

#include "sheet/SheetPlan.h"

namespace workbench {

/// Reads a script with German or English keywords. A text without page setup or plots gives an
/// empty plan. Numbers that are impossible for a sheet are limited to drawable values.
SheetPlan readSheetPlan(const QString& script);

} // namespace workbench
