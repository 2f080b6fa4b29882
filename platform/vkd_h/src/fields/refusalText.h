#pragma once

#include <QString>

enum class VkdNumberState;
struct StructLineEdit;
struct VkdPlausibleRange;

/// Returns the reason why a field refuses a text in one or two sentences; empty for an accepted
/// text.
QString refusalText(VkdNumberState state, const QString& text, const StructLineEdit& description);

/// Returns the reason why a value is implausible; empty for a value within the range or not set.
/// Values are compared in single precision, as in records.
QString doubtText(double value, const VkdPlausibleRange& range, const StructLineEdit& description);

/// Returns the sentence that names the value, given in base units, that remains while the text is
/// refused.
QString acceptedValueText(double value, const StructLineEdit& description);
