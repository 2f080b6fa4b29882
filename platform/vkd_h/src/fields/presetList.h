#pragma once

class QComboBox;
struct StructLineEdit;

/// Functions for the presets of an editable combo box. The entries are parsed as numbers according
/// to the description of the combo box's field.

/// Returns the index of the entry with this value, or -1 if there is none.
int presetAt(const QComboBox& combo, double value, const StructLineEdit& description);

/// Returns the index of the entry with the next greater or next smaller value, or -1 if there is
/// none.
int presetBeside(const QComboBox& combo, double value, bool greater,
                 const StructLineEdit& description);

/// Makes an entry current without changing the text in the field. An index of -1 clears the
/// selection.
void markPreset(QComboBox* combo, int entry);
