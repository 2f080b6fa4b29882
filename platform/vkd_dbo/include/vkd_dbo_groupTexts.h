#pragma once

#include "vkd_dbo_export.h"

#include <QString>

#include <vector>

namespace vkd {
namespace dbo {

/// Returns the number of a primary group or the name of a secondary group.
VKD_DBO_EXPORT QString groupText(int group);

/// Returns groups as text in which three or more consecutive numbers form a range: "1-40, 45". The
/// names of secondary groups are appended. The groups need not be sorted. Negative numbers are
/// omitted.
VKD_DBO_EXPORT QString groupRanges(std::vector<int> groups);

} // namespace dbo
} // namespace vkd
