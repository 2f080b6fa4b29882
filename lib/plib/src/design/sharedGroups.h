#pragma once

#include "DesignParameterData.h"

#include <QString>

namespace plib {

/// A group that more than one row names, with these rows, ascending. A record is stored for it from
/// each of them, and only one can be meant. -1 stands for the remaining groups.
struct SharedGroup
{
    int group = 0;
    std::vector<int> rows;
};

/// The groups that more than one row names, ascending. A row that names a group twice is no second
/// row.
std::vector<SharedGroup> sharedGroups(const std::vector<DesignParameterRow>& rows);

/// The same from the side of the rows: an entry for each of the `rowCount` rows, with the shared
/// groups that it names, which point into `shared`.
std::vector<std::vector<const SharedGroup*>>
sharedGroupsOfRows(const std::vector<SharedGroup>& shared, std::size_t rowCount);

/// A line for each of these groups, with the other rows that name it, as the user counts them, from
/// 1. Of very many the first ones. Empty without any.
QString sharedGroupsText(int row, const std::vector<const SharedGroup*>& shared);

} // namespace plib
