#pragma once

class QComboBox;
struct StructLineEdit;

/// The presets in the list of an editable combo box, read as numbers of its field.

/// The entry that stands for this value, -1 if there is none.
int presetAt(const QComboBox& combo, double value, const StructLineEdit& description);

/// The entry with the next greater value, or with the next smaller one; -1 if there is none.
int presetBeside(const QComboBox& combo, double value, bool greater,
                 const StructLineEdit& description);

/// Makes an entry the current one, or none for -1, without its text coming into the field.
void markPreset(QComboBox* combo, int entry);
