#pragma once

class QAction;
class QToolButton;
class QWidget;

namespace workbench {

/// Creates a button for a pane. The button has the text, tool tip and enabled state of an action of
/// the window.
QToolButton* actionButton(QAction* action, QWidget* parent);

} // namespace workbench
