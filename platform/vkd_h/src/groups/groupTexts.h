#pragma once

#include "groups/groupRows.h"
#include "vkd_h_groupInput.h"

namespace vkd {
namespace h {

/// Texts of a group dialog in the desktop's language.

/// Returns the message about a typed text and its groups without area elements; empty if there is
/// nothing to report. The message is plain text, because it contains the user's text.
QString inputText(const GroupInput& input, const std::vector<int>& withoutAreas);

/// Returns the text with the number of checked groups, and of those that are taken over, have no
/// area elements or are hidden. `shown` are the rows that pass the filter.
QString countText(const QVector<GroupRow>& rows, const QVector<int>& shown);

/// Returns the text about the groups of the list that the dialog does not show and the effect of OK
/// on them; empty if there are none.
QString notShownText(VKD_H_GroupKind kind, const std::vector<int>& opened,
                     const std::vector<int>& checked);

} // namespace h
} // namespace vkd
