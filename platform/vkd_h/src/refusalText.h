#pragma once

#include <QString>

enum class VkdNumberState;
struct StructLineEdit;

/// Why a field refuses a text, as one or two sentences; empty for an accepted one.
QString refusalText(VkdNumberState state, const QString& text, const StructLineEdit& description);

/// What a field that refuses its text does: which value, in base units, counts meanwhile.
QString keptValueText(double value, const StructLineEdit& description);
