#pragma once

class QWidget;

namespace workbench {

/// Returns whether the user is typing in a cell of a list or table of the window.
bool isCellEditorOpen(const QWidget* window);

} // namespace workbench
