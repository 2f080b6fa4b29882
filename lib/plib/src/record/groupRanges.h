#pragma once

#include <QString>

#include <vector>

namespace plib {

/// Returns group numbers as text in which three or more consecutive numbers form a range: "1-40,
/// 45". The names of secondary groups are appended. The numbers need not be sorted.
QString groupRanges(std::vector<int> numbers);

} // namespace plib
