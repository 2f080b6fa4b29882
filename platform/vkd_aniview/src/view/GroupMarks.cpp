#include "view/GroupMarks.h"

#include <algorithm>
#include <utility>

namespace vkd {
namespace aniview {

bool GroupMarks::setPicking(bool picking)
{
    return std::exchange(m_isPicking, picking) != picking;
}

bool GroupMarks::setPicked(const std::vector<int>& groups)
{
    std::vector<int> sorted = groups;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const bool changes = sorted != m_picked;
    m_picked = std::move(sorted);
    return changes;
}

bool GroupMarks::setHovered(int group)
{
    return std::exchange(m_hovered, group) != group;
}

bool GroupMarks::setHighlighted(int group)
{
    return std::exchange(m_highlighted, group) != group;
}

void GroupMarks::toggle(int group)
{
    const auto place = std::lower_bound(m_picked.begin(), m_picked.end(), group);
    if (place != m_picked.end() && *place == group)
        m_picked.erase(place);
    else
        m_picked.insert(place, group);
}

bool GroupMarks::isLit(int group) const
{
    return group == m_highlighted || group == m_hovered;
}

GroupMark GroupMarks::markOf(int group, bool isAnyLit) const
{
    if (m_isPicking && isPicked(group))
        return isLit(group) ? GroupMark::PickedLit : GroupMark::Picked;
    if (isLit(group))
        return GroupMark::Lit;
    if (m_isPicking && !m_picked.empty())
        return GroupMark::Pale;
    return isAnyLit ? GroupMark::Dimmed : GroupMark::None;
}

bool GroupMarks::isPicked(int group) const
{
    return std::binary_search(m_picked.begin(), m_picked.end(), group);
}

} // namespace aniview
} // namespace vkd
