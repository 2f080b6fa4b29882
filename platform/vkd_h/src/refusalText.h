#pragma once

#include <QString>

enum class VkdNumberState;
struct StructLineEdit;
struct VkdPlausibleRange;

/// Why a field refuses a text, as one or two sentences; empty for an accepted one.
QString refusalText(VkdNumberState state, const QString& text, const StructLineEdit& description);

/// Why a value can hardly be meant; empty for one within the range and for one that is not set.
/// Compared in single precision, as records hold values.
QString doubtText(double value, const VkdPlausibleRange& range, const StructLineEdit& description);

/// What a field that refuses its text does: which value, in base units, counts meanwhile.
QString keptValueText(double value, const StructLineEdit& description);
