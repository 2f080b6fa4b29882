#pragma once

#include <QString>

#include <vector>

namespace plib {

/// Returns numbers as text in which three or more consecutive numbers are a range: "1-40, 45".
/// Secondary groups follow with their names. The numbers need not be sorted.
QString groupRanges(std::vector<int> numbers);

} // namespace plib
