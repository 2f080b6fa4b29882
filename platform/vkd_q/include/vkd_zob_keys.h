#pragma once

namespace vkd {
namespace zob {

/// The key pair of a sequence of records in the store.
struct KeyPair
{
    int key1;
    int key2;
};

/// All key pairs that the library, the platform and the workbench use.
namespace keys {
constexpr KeyPair CrossSections{9, 0};
constexpr KeyPair System{10, 0};
constexpr KeyPair Groups{11, 0};
constexpr KeyPair LoadCases{12, 0};
constexpr KeyPair SecondaryGroups{13, 0};
constexpr KeyPair Bars{15, 0}; // the project's own bars, one little-endian float per record
constexpr KeyPair Nodes{20, 0};
constexpr KeyPair Supports{21, 0};
constexpr KeyPair Axes{30, 0};
constexpr KeyPair Points{31, 0};
constexpr KeyPair Lines{32, 0};
constexpr KeyPair Areas{33, 0};
constexpr KeyPair SectionCuts{34, 0};
constexpr KeyPair DesignLines{35, 0}; // the library queries it by the first key only
constexpr KeyPair Beams{100, 0};
constexpr KeyPair Trusses{150, 0};
constexpr KeyPair Cables{160, 0};
constexpr KeyPair Springs{170, 0};
constexpr KeyPair BeamTendons{180, 0};
constexpr KeyPair QuadTendons{181, 0};
constexpr KeyPair Quads{200, 0};
constexpr KeyPair Design{200, 6}; // the design records of the groups
constexpr KeyPair Bricks{300, 0};
constexpr KeyPair Camera{410, 0};
constexpr KeyPair PickedGroups{430, 0};
constexpr KeyPair ForeignDesign{0, 12979}; // in the scratch store: other programs' design records

/// The entries of a dialog page, as alternating key and value records.
constexpr KeyPair dialogPage(int page)
{
    return {420, page};
}
} // namespace keys

} // namespace zob
} // namespace vkd
