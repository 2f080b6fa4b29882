#pragma once

#include "project/presets/plotPresets.h"

class QTreeWidget;

namespace workbench {

/// Returns the plots in the tree of an output page.
PlotsOnPage plotsInTree(const QTreeWidget& tree);

} // namespace workbench
