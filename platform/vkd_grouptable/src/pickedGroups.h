#pragma once

#include <vector>

/// The groups picked in the 3D view. They are stored as one record of the project: the count, then
/// the groups in ascending order, each four bytes, little-endian. Each function returns whether it
/// succeeded.
bool readPickedGroups(int index, std::vector<int>& groups);
bool storePickedGroups(int index, const std::vector<int>& groups);
bool removePickedGroups(int index);
