#pragma once

#include "sheet/sheetCaptions.h"

class QTreeWidget;

namespace workbench {

/// Returns the checked plots and load case rows in the tree of an output page. They are in the
/// order of the tree, which is also the order of the pictures in the script. Plots that lack load
/// cases are omitted, because they do not produce a picture.
QVector<PlotCaption> checkedPlots(QTreeWidget* tree);

} // namespace workbench
