#pragma once

#include "designFields.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <vector>

class VKD_H_LineEdit;

/// What the dialogs of a row's parameters have in common.
namespace plib {

/// The white face of these dialogs, their title and their topic of the help. All of them are white,
/// because the figures of one of them have a white ground.
void dressDialog(VKD_QT_Dialog* dialog, const QString& title, const char* topic);

/// Tells the host that the help key in this dialog asks for a topic of the design's book.
void setHelpTopic(QWidget* dialog, const char* topic);

/// The row with OK, which accepts, and Cancel, which rejects, at the end of the layout.
void addOkRow(VKD_QT_Dialog* dialog, VKD_QT_VBoxLayout* layout);

/// A label at a place of the grid.
VKD_QT_Label* addLabel(VKD_QT_GridLayout* grid, int row, int column, const QString& text);

/// Puts a field at a place of the grid. `about` says which value of the dialog it holds, for those
/// who do not see where it stands.
void addField(VKD_QT_GridLayout* grid, int row, int column, QWidget* field, const QString& about);

/// Gives the columns of the grids in these boxes the same widths, so that fields stand below each
/// other. For boxes that are complete.
void alignColumns(const std::vector<QGroupBox*>& boxes);

/// Shows a field of the record, and reads one; in base units, -99999.0 for a field without a value.
void showValue(VKD_H_LineEdit* edit, const tagZOB_QUAD_RIM& record, RealField field);
float readValue(const VKD_H_LineEdit* edit);

} // namespace plib
