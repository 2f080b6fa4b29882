#pragma once

#include <QString>

namespace workbench {

/// Returns whether a group matches the text of a filter. Parts are separated by spaces, commas or
/// semicolons. A group must match one of the numbers and ranges such as "3-7", if there are any,
/// and its title must contain all words. A number also matches a title that contains it as a word.
bool matchesGroupFilter(const QString& filter, int number, const QString& title);

} // namespace workbench
