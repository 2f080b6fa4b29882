#pragma once

class QAction;
class QToolButton;
class QWidget;

namespace workbench {

/// Creates a button for a pane that shows an action of the window: its text, its tool tip and
/// whether it is enabled.
QToolButton* actionButton(QAction* action, QWidget* parent);

} // namespace workbench
