#pragma once

#include "record/DesignParameterData.h"

#include <QString>

namespace plib {

/// A group that more than one row names, with these rows in ascending order. Such a group is
/// probably a mistake: each of the rows stores a record for it, and only one can be meant. -1
/// represents the remaining groups.
struct SharedGroup
{
    int group = 0;
    std::vector<int> rows;
};

/// Returns the groups that more than one row names, in ascending order. A row that names a group
/// twice counts once.
std::vector<SharedGroup> sharedGroups(const std::vector<DesignParameterRow>& rows);

/// Returns for each of the `rowCount` rows the shared groups that it names, as pointers into
/// `shared`.
std::vector<std::vector<const SharedGroup*>>
sharedGroupsOfRows(const std::vector<SharedGroup>& shared, std::size_t rowCount);

/// Returns a text with a line for each of these groups, which lists the other rows that name it,
/// counted from 1. Long lists are shortened. The text is empty if there are no groups.
QString sharedGroupsText(int row, const std::vector<const SharedGroup*>& shared);

} // namespace plib
