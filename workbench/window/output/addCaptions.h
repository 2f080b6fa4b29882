#pragma once

#include "sheet/SheetPlan.h"

#include <ZobHandle.h>

namespace workbench {

class OutputDialog;

/// Adds captions and the titles of the load cases to a plan. The captions come from the dialog that
/// created the script; `dialog` is null if the project cannot be read.
void addCaptions(SheetPlan* plan, OutputDialog* dialog, ZobHandle project);

} // namespace workbench
