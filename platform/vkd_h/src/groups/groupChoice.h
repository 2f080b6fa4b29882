#pragma once

#include "VKD_H_GroupKind.h"

#include <vector>

namespace vkd {
namespace h {

/// Returns whether an entry of a list is a group of this kind. Lists contain groups of both kinds.
bool isOfKind(VKD_H_GroupKind kind, int group);

/// Returns the groups of the other kind, which the dialog does not show and OK may replace, in
/// ascending order without duplicates. The value -1 for the remaining groups is not included.
std::vector<int> groupsNotShown(VKD_H_GroupKind kind, const std::vector<int>& opened);

/// Returns whether the checked groups differ from the initial groups. `checked` must be ascending.
bool isOtherChoice(VKD_H_GroupKind kind, const std::vector<int>& opened,
                   const std::vector<int>& checked);

/// Returns the groups that OK confirms, in ascending order. The checked groups replace the whole
/// list. If the user changed nothing, the initial list is confirmed.
std::vector<int> confirmedGroups(VKD_H_GroupKind kind, const std::vector<int>& opened,
                                 const std::vector<int>& checked);

} // namespace h
} // namespace vkd
