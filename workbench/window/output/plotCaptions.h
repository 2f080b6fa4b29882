#pragma once

#include "sheet/sheetCaptions.h"

class QTreeWidget;

namespace workbench {

class WaitingPlots;

/// What is checked in the tree of an output page, in its order: plots that stand alone, and rows of
/// load cases as OutputDialog names them. Plots that wait for load cases draw nothing and are left
/// out.
QVector<PlotCaption> plotCaptions(const QTreeWidget& tree, const WaitingPlots& waiting);

} // namespace workbench
