#pragma once

#include "record/DesignParameterData.h"

#include <map>
#include <optional>
#include <set>

namespace plib {

/// Sorts the groups of a row and returns the row, or null if there is no such row. All code that
/// shows or edits the groups of a row uses this function, so that displayed lists are always
/// sorted.
DesignParameterRow* rowAt(DesignParameterData& data, int row);

/// Returns whether there is a row for the remaining groups.
bool hasRemainingRow(const DesignParameterData& data);

/// Appends the groups of all rows to the list, except those of the given row and of rows for the
/// remaining groups, and sorts the whole list. A group in two rows occurs twice in the list.
void collectUsedGroups(const DesignParameterData& data, int row, std::vector<int>& list);

/// Returns whether there is a row without groups, which cannot be stored in the project's records.
bool hasRowWithoutGroups(const DesignParameterData& data);

/// Row 0 is reserved for the remaining groups and can be neither moved nor deleted, even if a
/// project contains a first row with other groups.
bool mayMoveUp(const DesignParameterData& data, int row);
bool mayMoveDown(const DesignParameterData& data, int row);

/// Returns the nearest row with a design below (`direction` 1) or above (`direction` -1) the given
/// row, or -1 if there is none. Rows without a design have no dialogs.
int designRowBeside(const DesignParameterData& data, int row, int direction);

/// Returns the rows to which an operation on the current row applies: all selected rows if the
/// current row is one of them, otherwise only the current row.
std::set<int> rowsWith(int current, const std::set<int>& selected);

/// Returns the type of these rows, or nothing if their types differ.
std::optional<int> commonType(const DesignParameterData& data, const std::set<int>& rows);

/// The groups of rows, keyed by row number.
using GroupLists = std::map<int, std::vector<int>>;

/// Returns the lists that change if `groups` become the groups of a row. Groups that are new in the
/// row are removed from the other rows, because a group has only one record. Row 0 is reserved for
/// the remaining groups, so its list never changes. Negative numbers in `groups` are ignored.
GroupLists listsAfterAssigning(const DesignParameterData& data, int row,
                               const std::vector<int>& groups);

/// Removes these rows in one pass.
void removeRows(DesignParameterData& data, const std::set<int>& rows);

/// Removes the groups from all rows, because a group can have only one record. Deletes rows that
/// lose their last group. Rows that already had no groups remain.
void removeGroups(DesignParameterData& data, const std::vector<int>& groups);

} // namespace plib
