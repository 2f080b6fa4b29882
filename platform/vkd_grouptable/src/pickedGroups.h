#pragma once

#include <vkd_status.h>
#include <ZobHandle.h>

#include <vector>

/// The groups picked in the 3D view. They are stored as one record of the project: the count, then
/// the groups in ascending order, each four bytes, little-endian. The first function returns
/// whether there is an undamaged record; the codes of the others are those of the store.
bool readPickedGroups(ZobHandle project, std::vector<int>& groups);
VkdStatus storePickedGroups(ZobHandle project, const std::vector<int>& groups);
VkdStatus removePickedGroups(ZobHandle project);
