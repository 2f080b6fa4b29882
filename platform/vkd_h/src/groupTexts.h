#pragma once

#include "groupInput.h"
#include "groupRows.h"

namespace vkd {
namespace h {

/// The sentences of a group dialog, in the language of the desktop.

/// The message about a typed text and about those of its groups that have no area elements; empty
/// if there is nothing to say. Plain text, because it repeats the user's.
QString inputText(const GroupInput& input, const std::vector<int>& withoutAreas);

/// How many groups are checked, and how many of these deserve a look. `shown` are the rows that the
/// filter lets through.
QString countText(const QVector<GroupRow>& rows, const QVector<int>& shown);

/// The effect of OK on the groups of the list that the dialog does not show; empty if there are
/// none.
QString notShownText(VKD_H_GroupKind kind, const std::vector<int>& opened,
                     const std::vector<int>& checked);

} // namespace h
} // namespace vkd
