#pragma once

#include "DesignParameterData.h"

#include <set>

namespace plib {

/// A row with its groups in rising order, or null if there is no such row. Who shows or edits the
/// groups of a row comes this way, so that a list that has been seen is sorted.
DesignParameterRow* rowAt(DesignParameterData& data, int row);

/// Whether some row stands for the remaining groups.
bool hasRemainingRow(const DesignParameterData& data);

/// Appends the groups of all rows but the given one and those of the remaining groups, and sorts
/// the whole list. Groups that stand in two rows come twice.
void collectUsedGroups(const DesignParameterData& data, int row, std::vector<int>& list);

/// Whether a row that names no group would be lost with the project's records.
bool hasRowWithoutGroups(const DesignParameterData& data);

/// Row 0 is the place of the row for the remaining groups, whatever it holds: it stays where it is
/// and is not deleted.
bool mayMoveUp(const DesignParameterData& data, int row);
bool mayMoveDown(const DesignParameterData& data, int row);

/// Removes these rows, in one pass.
void removeRows(DesignParameterData& data, const std::set<int>& rows);

} // namespace plib
