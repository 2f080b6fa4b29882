#pragma once

#include <vector>

/// The groups picked in the 3D view, one record of the project: their count, then the groups in
/// ascending order, each of four bytes, little-endian. All answer whether they did it.
bool readPickedGroups(int index, std::vector<int>& groups);
bool storePickedGroups(int index, const std::vector<int>& groups);
bool removePickedGroups(int index);
