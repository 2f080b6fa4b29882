#pragma once

namespace vkd {
namespace plib {
namespace designparameter {

/// The keys of the entries in which the page saves rows without groups on a dialog page: this
/// prefix with the numbers 1, 2 and so on, without gaps.
constexpr char EntryPrefix[] = "MerPara";

} // namespace designparameter
} // namespace plib
} // namespace vkd
