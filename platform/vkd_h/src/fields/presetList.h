#pragma once

class QComboBox;
struct StructLineEdit;

/// Functions for the preset texts of an editable combo box, read as numbers of its field.

/// Returns the entry with this value, -1 if there is none.
int presetAt(const QComboBox& combo, double value, const StructLineEdit& description);

/// Returns the entry with the next greater or next smaller value; -1 if there is none.
int presetBeside(const QComboBox& combo, double value, bool greater,
                 const StructLineEdit& description);

/// Makes an entry current, or none for -1, without changing the text in the field.
void markPreset(QComboBox* combo, int entry);
