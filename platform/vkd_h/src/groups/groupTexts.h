#pragma once

#include "groups/groupRows.h"
#include "vkd_h_groupInput.h"

namespace vkd {
namespace h {

/// Messages of a group dialog in the desktop language.

/// Returns the message about the user's input and its groups without area elements, or an empty
/// string if there is nothing to report. The message is plain text, because it contains user input.
QString inputText(const GroupInput& input, const std::vector<int>& withoutAreas);

/// Returns a message with the number of checked groups and the number of checked groups that are
/// reassigned, have no area elements or are hidden. `shown` contains the rows that pass the filter.
QString countText(const QVector<GroupRow>& rows, const QVector<int>& shown);

/// Returns a message about the groups of the list that the dialog does not show and the effect of
/// OK on them. Returns an empty string if there are no such groups.
QString notShownText(VKD_H_GroupKind kind, const std::vector<int>& opened,
                     const std::vector<int>& checked);

} // namespace h
} // namespace vkd
