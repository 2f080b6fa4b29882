#pragma once

#include <vkd_status.h>
#include <ZobHandle.h>

#include <vector>

/// Functions for the groups picked in the 3D view. They are stored in one record of the project:
/// the count, followed by the groups in ascending order. All numbers are little-endian 32-bit
/// integers. The first function returns whether there is an undamaged record. The other functions
/// return the status of the store.
bool readPickedGroups(ZobHandle project, std::vector<int>& groups);
VkdStatus storePickedGroups(ZobHandle project, const std::vector<int>& groups);
VkdStatus removePickedGroups(ZobHandle project);
