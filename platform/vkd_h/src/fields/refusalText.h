#pragma once

#include <QString>

enum class VkdNumberState;
struct StructLineEdit;
struct VkdPlausibleRange;

/// Returns one or two sentences that explain why a field rejects the text. Returns an empty string
/// if the text is accepted.
QString refusalText(VkdNumberState state, const QString& text, const StructLineEdit& description);

/// Returns the reason why a value is implausible. Returns an empty string if the value is not set
/// or within the range. Values are compared in single precision, which is the precision of records.
QString doubtText(double value, const VkdPlausibleRange& range, const StructLineEdit& description);

/// Returns a sentence with the value that the field keeps while its text is rejected. `value` is in
/// base units.
QString acceptedValueText(double value, const StructLineEdit& description);
