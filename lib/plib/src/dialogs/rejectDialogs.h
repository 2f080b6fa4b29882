#pragma once

class QWidget;

namespace plib {

/// Closes the open dialogs whose parent is this widget and sets their parent to null. A destructor
/// calls this function if the dialogs are on the stack of running functions, because a dialog on
/// the stack must not be deleted with its parent.
void rejectDialogs(const QWidget* parent);

} // namespace plib
