#pragma once

namespace plib {

/// The keyword language of a script, which does not depend on the desktop language. The values are
/// those of setting 108. Exported functions have a parameter `bool english` instead.
enum class Keywords : int { German = 0, English = 1 };

constexpr Keywords keywordsIf(bool english)
{
    return english ? Keywords::English : Keywords::German;
}

} // namespace plib
