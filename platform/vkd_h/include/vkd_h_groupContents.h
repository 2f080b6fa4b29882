#pragma once

#include "vkd_h_export.h"

#include <vkd_dbo_groups.h>

namespace vkd {
namespace h {

/// Returns the contents of a group as a string such as "12 areas, 1 beam".
VKD_H_EXPORT QString groupContentsText(const dbo::GroupContents& contents);
/// Returns the number of elements of all types.
VKD_H_EXPORT int elementCount(const dbo::GroupContents& contents);

} // namespace h
} // namespace vkd
