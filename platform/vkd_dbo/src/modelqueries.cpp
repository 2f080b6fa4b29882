#include "vkd_dbo_queries.h"

#include "modelkeys.h"

#include <vkd_zob.h>

namespace vkd {
namespace dbo {

namespace {
bool has(int index, KeyPair pair)
{
    KeyPair found = pair;
    vkd_zob_kenq_ex(index, &found.key1, &found.key2, 1);
    return found.key1 == pair.key1 && found.key2 == pair.key2;
}
} // namespace

bool hasNodes(int index, int*)
{
    return has(index, keys::Nodes);
}

bool hasQuads(int index, int*)
{
    return has(index, keys::Quads);
}

bool hasBoundaries(int index, int*)
{
    return has(index, keys::Supports);
}

bool hasBeams(int index, int*)
{
    return has(index, keys::Beams);
}

bool hasTrus(int index, int*)
{
    return has(index, keys::Trusses);
}

bool hasBscts(int index, int*)
{
    return has(index, keys::SectionCuts);
}

bool hasPoints(int index, int*)
{
    return has(index, keys::Points);
}

bool hasLines(int index, int*)
{
    return has(index, keys::Lines);
}

bool hasAreas(int index, int*)
{
    return has(index, keys::Areas);
}

bool hasAxes(int index, int*)
{
    return has(index, keys::Axes);
}

bool hasCables(int index, int*)
{
    return has(index, keys::Cables);
}

bool hasSprings(int index, int*)
{
    return has(index, keys::Springs);
}

bool hasBrics(int index, int*)
{
    return has(index, keys::Bricks);
}

bool hasQuadTendons(int index, int*)
{
    return has(index, keys::QuadTendons);
}

bool hasBeamTendons(int index, int*)
{
    return has(index, keys::BeamTendons);
}

bool hasCrossSections(int index, int*)
{
    return has(index, keys::CrossSections);
}

bool hasGroups(int index, int*)
{
    return has(index, keys::Groups);
}

bool hasSgrp(int index, int*)
{
    return has(index, keys::SecondaryGroups);
}

} // namespace dbo
} // namespace vkd
