#pragma once

#include "window/presets/PlotPresetsDialog.h"

class QAction;
class VKD_P_DesignParameter;

namespace workbench {

class OpenProject;

/// Adds an action "Presets..." that opens the presets for the selected rows of a design page to the
/// actions of the page and to the context menu of its table. The page must be initialised and owns
/// the action. The project is not owned and must outlive the page.
QAction* addPresetsAction(VKD_P_DesignParameter* page, const OpenProject* project);

/// Adds an action "Presets..." that opens the presets of plots to the actions of a widget, which
/// owns the action. `tree` is the tree of an output page and must outlive the widget.
QAction* addPlotPresetsAction(QWidget* widget, const QTreeWidget* tree,
                              const PlotPresetsDialog::ApplyPlots& applyPlots,
                              const QString& projectPath);

} // namespace workbench
