#pragma once

#include "groupInput.h"
#include "groupRows.h"

namespace vkd {
namespace h {

/// The sentences of a group dialog, in the language of the desktop.

/// What there is to say about a typed text and about those of its groups that have no area
/// elements; empty if nothing. Plain text, which repeats what the user typed.
QString inputText(const GroupInput& input, const std::vector<int>& withoutAreas);

/// How many groups are checked, and what about them deserves a look. `shown` are the rows that the
/// filter lets through.
QString countText(const QVector<GroupRow>& rows, const QVector<int>& shown);

/// What OK does to the groups of the list that the dialog does not show; empty if there are none.
QString notShownText(VKD_H_GroupKind kind, const std::vector<int>& opened,
                     const std::vector<int>& checked);

} // namespace h
} // namespace vkd
