#pragma once

#include "VKD_H_GroupKind.h"

#include <vector>

namespace vkd {
namespace h {

/// Returns whether a number of a list is a group of this kind; lists contain both kinds.
bool isOfKind(VKD_H_GroupKind kind, int group);

/// Returns the groups of the other kind, which the dialog does not show and OK may replace, in
/// ascending order without duplicates. The -1 of the remaining groups is not included.
std::vector<int> groupsNotShown(VKD_H_GroupKind kind, const std::vector<int>& opened);

/// Returns whether the checked groups differ from the initial ones. `checked` must be ascending.
bool isOtherChoice(VKD_H_GroupKind kind, const std::vector<int>& opened,
                   const std::vector<int>& checked);

/// Returns the groups that OK confirms, in ascending order. The checked groups replace the whole
/// list. If the user changed nothing, the initial list is confirmed.
std::vector<int> confirmedGroups(VKD_H_GroupKind kind, const std::vector<int>& opened,
                                 const std::vector<int>& checked);

} // namespace h
} // namespace vkd
