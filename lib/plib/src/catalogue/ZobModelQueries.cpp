#include "catalogue/ZobModelQueries.h"

#include <vkd_dbo_queries.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob_keys.h>

namespace plib {

namespace {
using vkd::zob::keys::DesignLines;

/// The platform has no function for this query. The second key of the pair is intentionally
/// ignored.
bool hasDesignLines(int index, int*)
{
    vkd::zob::KeyPair found = DesignLines;
    vkd_zob_kenq_ex(index, &found.key1, &found.key2, 1);
    return found.key1 == DesignLines.key1;
}

using Query = bool (*)(int, int*);

Query queryOf(Content content)
{
    switch (content) {
    case Content::Nodes: return vkd::dbo::hasNodes;
    case Content::Quads: return vkd::dbo::hasQuads;
    case Content::Boundaries: return vkd::dbo::hasBoundaries;
    case Content::Beams: return vkd::dbo::hasBeams;
    case Content::DesignLines: return hasDesignLines;
    case Content::Trusses: return vkd::dbo::hasTrus;
    case Content::SectionCuts: return vkd::dbo::hasBscts;
    case Content::Points: return vkd::dbo::hasPoints;
    case Content::Lines: return vkd::dbo::hasLines;
    case Content::Areas: return vkd::dbo::hasAreas;
    case Content::Axes: return vkd::dbo::hasAxes;
    case Content::Cables: return vkd::dbo::hasCables;
    case Content::Springs: return vkd::dbo::hasSprings;
    case Content::Bricks: return vkd::dbo::hasBrics;
    case Content::QuadTendons: return vkd::dbo::hasQuadTendons;
    case Content::BeamTendons: return vkd::dbo::hasBeamTendons;
    case Content::CrossSections: return vkd::dbo::hasCrossSections;
    }
    Q_UNREACHABLE();
}
} // namespace

ZobModelQueries::ZobModelQueries(const VKD_H_PluginParameter* parameter)
    : m_parameter(parameter)
{
}

bool ZobModelQueries::has(Content content) const
{
    const VKD_H_ZOBDoc* document = m_parameter->modelDoc();
    if (content == Content::CrossSections && m_parameter->sectionDoc())
        document = m_parameter->sectionDoc();
    return queryOf(content)(document->index(), nullptr);
}

int ZobModelQueries::kindOfSystem() const
{
    return vkd::dbo::getKindOfSystem(m_parameter->modelDoc()->index(), nullptr);
}

} // namespace plib
