#pragma once

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <vector>

/// Functions for the three dialogs in which the parameters of a row are edited.
namespace plib {

/// Sets the title, the help topic and a white background for a dialog. All dialogs are white,
/// because the figures in one of them have a white background.
void dressDialog(VKD_QT_Dialog* dialog, const QString& title, const char* topic);

/// Sets the topic of the design help book that the host shows when the user presses the help key.
void setHelpTopic(QWidget* dialog, const char* topic);

/// Appends a button row with OK, which accepts the dialog, and Cancel, which rejects it.
void addOkRow(VKD_QT_Dialog* dialog, VKD_QT_VBoxLayout* layout);

/// Adds a label to a cell of the grid.
VKD_QT_Label* addLabel(VKD_QT_GridLayout* grid, int row, int column, const QString& text);

/// Adds a field to a cell of the grid. `about` is its accessible description, for users who cannot
/// see its position.
void addField(VKD_QT_GridLayout* grid, int row, int column, QWidget* field, const QString& about);

/// The order in which Tab moves through the fields of the boxes. The columns of both boxes are
/// aligned and usually filled one after the other, so ByColumns needs the fewest keystrokes.
enum class TabOrder { ByRows, ByColumns };

/// Deletes the boxes and their fields. The dialog's pointers to the fields become invalid.
void removeBoxes(VKD_QT_Dialog* dialog);

/// Inserts filled boxes at the top of the dialog. The columns of their grids have the same widths,
/// so that their fields are aligned.
void insertBoxes(VKD_QT_Dialog* dialog, const std::vector<QGroupBox*>& boxes, TabOrder order);

} // namespace plib
