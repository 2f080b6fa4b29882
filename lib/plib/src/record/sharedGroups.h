#pragma once

#include "record/DesignParameterData.h"

#include <QString>

namespace plib {

/// A group that is listed in more than one row, and the indexes of these rows in ascending order.
/// Such a group is probably an error: each of the rows stores a record for it, but only one record
/// can be intended. -1 represents the remaining groups.
struct SharedGroup
{
    int group = 0;
    std::vector<int> rows;
};

/// Returns the groups that are listed in more than one row, in ascending order. A row that lists a
/// group twice counts once.
std::vector<SharedGroup> sharedGroups(const std::vector<DesignParameterRow>& rows);

/// Returns the shared groups for each of the `rowCount` rows, as pointers into `shared`.
std::vector<std::vector<const SharedGroup*>>
sharedGroupsOfRows(const std::vector<SharedGroup>& shared, std::size_t rowCount);

/// Returns a message for the row, with one line per shared group that lists the other rows with
/// this group. Row numbers start at 1. Long lists are shortened. Returns an empty string if there
/// are no shared groups.
QString sharedGroupsText(int row, const std::vector<const SharedGroup*>& shared);

} // namespace plib
