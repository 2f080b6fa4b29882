#pragma once

#include "vkd_h_export.h"

#include <QStringList>

#include <vector>

namespace vkd {
namespace h {

/// The groups in a text that the user typed. Its parts are separated by blanks, commas or
/// semicolons. Time and memory are bounded by the number of existing groups and the length of the
/// text.
struct GroupInput
{
    std::vector<int> groups; ///< existing groups, ascending
    QStringList unreadable;  ///< parts that cannot be parsed
    QStringList missing;     ///< parts that name no existing group
};

/// Reads numbers and ranges such as 1-5, in either direction and with any dash. A range stands for
/// the existing groups in it; if there are none, it is missing. `existing` must be ascending.
VKD_H_EXPORT GroupInput readNumbers(const QString& text, const std::vector<int>& existing);

/// Reads names of secondary groups. The case matters only if two names differ in nothing else.
/// `existing` must contain packed names in ascending order.
VKD_H_EXPORT GroupInput readNames(const QString& text, const std::vector<int>& existing);

/// Reads numbers, ranges and names of secondary groups in one text. A part that is none of these is
/// missing, because any text could be a name.
VKD_H_EXPORT GroupInput readNumbersAndNames(const QString& text, const std::vector<int>& numbers,
                                            const std::vector<int>& names);

} // namespace h
} // namespace vkd
