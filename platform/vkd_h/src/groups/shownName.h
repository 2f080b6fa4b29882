#pragma once

#include <QString>

namespace vkd {
namespace h {

/// Returns the name in a packed number, with "?" for unprintable characters.
QString shownName(int packed);

} // namespace h
} // namespace vkd
