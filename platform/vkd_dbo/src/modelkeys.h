#pragma once

#include "vkd_dbo_model.h"

namespace vkd {
namespace dbo {

/// The keys of a sequence of records in the project's store.
struct KeyPair
{
    int key1;
    int key2;
};

namespace keys {
constexpr KeyPair CrossSections{9, 0};
constexpr KeyPair System{10, 0};
constexpr KeyPair Groups{11, 0};
constexpr KeyPair LoadCases{12, 0};
constexpr KeyPair SecondaryGroups{13, 0};
constexpr KeyPair Nodes{20, 0};
constexpr KeyPair Supports{21, 0};
constexpr KeyPair Axes{30, 0};
constexpr KeyPair Points{31, 0};
constexpr KeyPair Lines{32, 0};
constexpr KeyPair Areas{33, 0};
constexpr KeyPair SectionCuts{34, 0};
constexpr KeyPair DesignLines{35, 0}; // the library queries it by the first key alone
constexpr KeyPair Beams{100, 0};
constexpr KeyPair Trusses{150, 0};
constexpr KeyPair Cables{160, 0};
constexpr KeyPair Springs{170, 0};
constexpr KeyPair BeamTendons{180, 0};
constexpr KeyPair QuadTendons{181, 0};
constexpr KeyPair Quads{200, 0};
constexpr KeyPair Bricks{300, 0};
constexpr KeyPair Camera{410, 0};
} // namespace keys

/// Calls `visit(KeyPair, list)` for every list of the model, which may be const.
template <typename AnyModel, typename Visitor>
void forEachList(AnyModel& model, Visitor visit)
{
    visit(keys::CrossSections, model.crossSections);
    visit(keys::Groups, model.groups);
    visit(keys::LoadCases, model.loadCases);
    visit(keys::SecondaryGroups, model.secondaryGroups);
    visit(keys::Nodes, model.nodes);
    visit(keys::Supports, model.supports);
    visit(keys::Axes, model.axes);
    visit(keys::Points, model.points);
    visit(keys::Lines, model.lines);
    visit(keys::Areas, model.areas);
    visit(keys::SectionCuts, model.sectionCuts);
    visit(keys::DesignLines, model.designLines);
    visit(keys::Beams, model.beams);
    visit(keys::Trusses, model.trusses);
    visit(keys::Cables, model.cables);
    visit(keys::Springs, model.springs);
    visit(keys::BeamTendons, model.beamTendons);
    visit(keys::QuadTendons, model.quadTendons);
    visit(keys::Quads, model.quads);
    visit(keys::Bricks, model.bricks);
}

} // namespace dbo
} // namespace vkd
