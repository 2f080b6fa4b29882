#include "geometry/GroupParts.h"

#include <vkd_dbo_packedNames.h>

namespace vkd {
namespace aniview {

GroupParts::GroupParts(const QVector<dbo::SecondaryGroup>& groups)
{
    std::map<int, const dbo::SecondaryGroup*> sorted;
    for (const dbo::SecondaryGroup& group : groups)
        sorted[dbo::packedName(group.name)] = &group;
    for (const auto& [name, group] : sorted) {
        for (int quad : group->quads)
            m_quads[quad].push_back(name);
        for (int beam : group->beams)
            m_beams[beam].push_back(name);
    }
}

int GroupParts::numberOf(const GroupPart& part)
{
    return m_numbers.try_emplace(part, int(m_numbers.size())).first->second;
}

std::vector<GroupPart> GroupParts::sorted(std::vector<int>* indexes) const
{
    std::vector<GroupPart> parts;
    indexes->resize(m_numbers.size());
    for (const auto& [part, number] : m_numbers) {
        (*indexes)[size_t(number)] = int(parts.size());
        parts.push_back(part);
    }
    return parts;
}

} // namespace aniview
} // namespace vkd
