#pragma once

#include "VKD_H_GroupKind.h"

#include <vector>

namespace vkd {
namespace h {

/// A list of groups holds both kinds, and a group dialog shows one of them.
bool isOfKind(VKD_H_GroupKind kind, int group);

/// The groups of the list that the dialog does not show and that OK may replace: those of the other
/// kind, ascending, each once. The mark for the remaining groups is none of them.
std::vector<int> groupsNotShown(VKD_H_GroupKind kind, const std::vector<int>& opened);

/// Whether other groups are checked than those that the dialog was opened with. `checked` ascends.
bool isOtherChoice(VKD_H_GroupKind kind, const std::vector<int>& opened,
                   const std::vector<int>& checked);

/// The groups that OK confirms, ascending: the checked ones take the place of the whole list. A
/// dialog in which nothing is changed confirms the list that it was opened with.
std::vector<int> confirmedGroups(VKD_H_GroupKind kind, const std::vector<int>& opened,
                                 const std::vector<int>& checked);

} // namespace h
} // namespace vkd
