#include "groups/groupChoice.h"

#include <vkd_dbo_packedNames.h>

#include <algorithm>
#include <iterator>

namespace vkd {
namespace h {

namespace {
/// Returns the groups in ascending order without duplicates.
std::vector<int> sorted(std::vector<int> groups)
{
    std::sort(groups.begin(), groups.end());
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    return groups;
}

VKD_H_GroupKind otherKind(VKD_H_GroupKind kind)
{
    return kind == VKD_H_GroupKind::Primary ? VKD_H_GroupKind::Secondary : VKD_H_GroupKind::Primary;
}

std::vector<int> groupsOfKind(VKD_H_GroupKind kind, const std::vector<int>& list)
{
    std::vector<int> groups;
    std::copy_if(list.begin(), list.end(), std::back_inserter(groups),
                 [kind](int group) { return isOfKind(kind, group); });
    return sorted(groups);
}
} // namespace

bool isOfKind(VKD_H_GroupKind kind, int group)
{
    return kind == VKD_H_GroupKind::Secondary ? dbo::isSecondaryGroup(group)
                                              : dbo::isPrimaryGroup(group);
}

std::vector<int> groupsNotShown(VKD_H_GroupKind kind, const std::vector<int>& opened)
{
    return groupsOfKind(otherKind(kind), opened);
}

bool isOtherChoice(VKD_H_GroupKind kind, const std::vector<int>& opened,
                   const std::vector<int>& checked)
{
    return checked != groupsOfKind(kind, opened);
}

std::vector<int> confirmedGroups(VKD_H_GroupKind kind, const std::vector<int>& opened,
                                 const std::vector<int>& checked)
{
    return isOtherChoice(kind, opened, checked) ? checked : sorted(opened);
}

} // namespace h
} // namespace vkd
