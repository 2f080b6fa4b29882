#pragma once

#include "record/designFields.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <vector>

class VKD_H_LineEdit;

/// Functions for the three dialogs in which the parameters of a row are edited.
namespace plib {

/// Sets the title, the help topic and a white background for a dialog. All dialogs are white
/// because the figures in one dialog have a white background.
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

/// Sets the columns of the grids in these boxes to the same widths, so that their fields are
/// aligned. Must be called after the boxes have been filled.
void alignColumns(const std::vector<QGroupBox*>& boxes);

/// Copy a value in base units from a field of the record to a line edit and back. The value of an
/// empty line edit is -99999.0.
void showValue(VKD_H_LineEdit* edit, const tagZOB_QUAD_RIM& record, RealField field);
float readValue(const VKD_H_LineEdit* edit);

} // namespace plib
