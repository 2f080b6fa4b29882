#pragma once

#include "record/designFields.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <vector>

class VKD_H_LineEdit;

/// Functions shared by the three dialogs for the parameters of a row.
namespace plib {

/// Sets the title, the help topic and the white background of a dialog. All of them are white
/// because the figures in one of them have a white background.
void dressDialog(VKD_QT_Dialog* dialog, const QString& title, const char* topic);

/// Sets the topic in the design help book that the host shows when the user presses the help key.
void setHelpTopic(QWidget* dialog, const char* topic);

/// Appends a row with OK, which accepts the dialog, and Cancel, which rejects it.
void addOkRow(VKD_QT_Dialog* dialog, VKD_QT_VBoxLayout* layout);

/// Adds a label to a cell of the grid.
VKD_QT_Label* addLabel(VKD_QT_GridLayout* grid, int row, int column, const QString& text);

/// Adds a field to a cell of the grid. `about` is its accessible description, for users who cannot
/// see its position.
void addField(VKD_QT_GridLayout* grid, int row, int column, QWidget* field, const QString& about);

/// Sets the columns of the grids in these boxes to the same widths, so that their fields are
/// aligned. Must be called after the boxes are filled.
void alignColumns(const std::vector<QGroupBox*>& boxes);

/// Show a field of the record in an edit, and read it back, in base units. The value of an empty
/// edit is -99999.0.
void showValue(VKD_H_LineEdit* edit, const tagZOB_QUAD_RIM& record, RealField field);
float readValue(const VKD_H_LineEdit* edit);

} // namespace plib
