#pragma once

namespace plib {

/// The keyword language of a script, with the values of setting 108. It does not depend on the
/// language of the desktop. Exported operations have a bool `english` instead.
enum class Keywords : int { German = 0, English = 1 };

constexpr Keywords keywordsIf(bool english)
{
    return english ? Keywords::English : Keywords::German;
}

} // namespace plib
