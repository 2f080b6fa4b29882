#pragma once

class QAction;
class VKD_P_DesignParameter;

namespace workbench {

class OpenProject;

/// Adds an action "Presets..." that opens the presets for the selected rows of a design page to the
/// actions of the page and to the context menu of its table. The page must be initialised and owns
/// the action. The project is not owned and must outlive the page.
QAction* addPresetsAction(VKD_P_DesignParameter* page, const OpenProject* project);

} // namespace workbench
