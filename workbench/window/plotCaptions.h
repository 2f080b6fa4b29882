#pragma once

#include <sheetCaptions.h>

class QTreeWidget;

namespace workbench {

/// What is checked in the tree of an output page, in its order: plots that stand alone, and rows of
/// load cases as OutputDialog names them. A plot that found no load case counts as one that stands
/// alone, because the tree does not tell them apart.
QVector<PlotCaption> plotCaptions(const QTreeWidget& tree);

} // namespace workbench
