#pragma once

#include <QString>

namespace vkd {
namespace h {

/// The name in a packed number, with "?" for what nobody can read.
QString shownName(int packed);

} // namespace h
} // namespace vkd
