#pragma once

#include "vkd_h_export.h"

#include <QString>

namespace vkd {
namespace h {

/// Returns the name in a packed number, with "?" for unprintable characters.
VKD_H_EXPORT QString shownName(int packed);

} // namespace h
} // namespace vkd
