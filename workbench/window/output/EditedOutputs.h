#pragma once

#include "project/output/OutputList.h"
#include "window/output/OutputDialog.h"

namespace workbench {

/// The state of an OutputEditor: the dialog of the current output, and all outputs.
struct EditedOutputs
{
    OutputPresent dialog;
    OutputList outputs;
    bool isChanged;
};

} // namespace workbench
