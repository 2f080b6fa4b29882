#pragma once

#include "vkd_dbo_model.h"

#include <vkd_zob_keys.h>

namespace vkd {
namespace dbo {

using zob::KeyPair;
namespace keys = zob::keys;

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
