#pragma once

#include "vkd_h_export.h"

#include <QString>

namespace vkd {
namespace h {

/// Returns the name encoded in a packed number, with "?" for each unprintable character.
VKD_H_EXPORT QString shownName(int packed);

} // namespace h
} // namespace vkd
