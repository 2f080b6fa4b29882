#pragma once

#include "vkd_h_export.h"

#include <QStringList>

#include <vector>

namespace vkd {
namespace h {

/// The groups listed in user input, whose parts are separated by spaces, commas or semicolons.
/// Processing time and memory are bounded by the number of existing groups and the length of the
/// input.
struct GroupInput
{
    std::vector<int> groups; ///< existing groups, ascending
    QStringList unreadable;  ///< parts that cannot be parsed
    QStringList missing;     ///< parts that do not match an existing group
};

/// Reads numbers and ranges such as 1-5. The bounds of a range may be in either order, with any
/// kind of dash between them. A range represents the existing groups within it. If there are none,
/// the range is reported as missing. `existing` must be ascending.
VKD_H_EXPORT GroupInput readNumbers(const QString& text, const std::vector<int>& existing);

/// Reads names of secondary groups. Matching is case-insensitive, except for names that differ only
/// in case. `existing` must contain packed names in ascending order.
VKD_H_EXPORT GroupInput readNames(const QString& text, const std::vector<int>& existing);

/// Reads numbers, ranges and names of secondary groups from one string. Any other part is reported
/// as missing, because any string could be a name.
VKD_H_EXPORT GroupInput readNumbersAndNames(const QString& text, const std::vector<int>& numbers,
                                            const std::vector<int>& names);

} // namespace h
} // namespace vkd
