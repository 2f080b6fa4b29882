#pragma once

#include "record/DesignParameterData.h"

#include <vkd_h_groupInput.h>

#include <set>

namespace plib {

/// The groups that users may list for a row.
struct KnownGroups
{
    /// The groups may include packed names.
    explicit KnownGroups(const std::set<int>& groups);
    /// Uses the groups of the model and the groups that occur only in rows.
    explicit KnownGroups(const DesignParameterData& data);

    std::vector<int> numbers;
    vkd::h::GroupNames names;
};

/// The result of reading a list of groups.
struct GroupsReading
{
    bool isAccepted = false;
    std::vector<int> groups; ///< in the form in which a row stores them
    QStringList missing;     ///< parts that match no known group
};

/// Reads numbers, ranges and names of secondary groups, for example "1-4, 7". Rejects the text if
/// any part of it matches no known group. "None" and "Remaining Groups" are read in both languages;
/// "remaining" is also accepted.
GroupsReading readGroupsText(const QString& text, const KnownGroups& known);

/// Returns the groups of a row as text that readGroupsText() accepts, with ranges. The text of a
/// row without groups is empty.
QString editableGroupsText(const DesignParameterRow& row);

} // namespace plib
