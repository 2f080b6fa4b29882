#pragma once

namespace plib {

/// The keyword language of a script. It does not depend on the language of the desktop. Exported
/// operations have a bool `english` instead.
enum class Keywords : int { German, English };

constexpr Keywords keywordsIf(bool english)
{
    return english ? Keywords::English : Keywords::German;
}

} // namespace plib
