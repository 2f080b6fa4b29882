#pragma once

#include "sheet/SheetPlan.h"

#include <ZobHandle.h>

namespace workbench {

class OutputDialog;

/// Adds the captions of the dialog that created the script of the sheets, and the titles of the load
/// cases. `dialog` is null if it cannot be created because the project cannot be read.
void addCaptions(SheetPlan* plan, OutputDialog* dialog, ZobHandle project);

} // namespace workbench
