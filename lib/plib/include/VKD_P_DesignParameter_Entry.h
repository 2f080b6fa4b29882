#pragma once

namespace vkd {
namespace plib {
namespace designparameter {

/// The key prefix of the entries in which the page saves rows without groups on a dialog page. The
/// keys consist of this prefix and the numbers 1, 2 and so on, without gaps.
constexpr char EntryPrefix[] = "MerPara";

} // namespace designparameter
} // namespace plib
} // namespace vkd
