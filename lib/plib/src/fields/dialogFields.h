#pragma once

#include "record/designFields.h"

#include <vector>

class QWidget;
class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;

namespace plib {

/// A field of the record and the widget of a dialog in which it is edited: a line edit, which may
/// belong to a combo box, or a combo box of bar diameters. The other pointer is null.
struct DialogField
{
    RealField field;
    VKD_H_LineEdit* edit;
    VKD_A_BarDiameterCombo* bar;
};

/// The fields that a dialog has for the type of its record.
using DialogFields = std::vector<DialogField>;

/// These functions show and return a value in base units. The value of an empty line edit is
/// -99999.0.
void showValue(const DialogField& field, float value);
float valueOf(const DialogField& field);

void showValues(const DialogFields& fields, const tagZOB_QUAD_RIM& record);
std::vector<float> valuesOf(const DialogFields& fields);

/// Writes the values to the record.
void writeValues(const DialogFields& fields, tagZOB_QUAD_RIM* record);

} // namespace plib
