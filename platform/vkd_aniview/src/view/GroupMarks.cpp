#include "view/GroupMarks.h"

#include <algorithm>
#include <utility>

namespace vkd {
namespace aniview {

namespace {
/// Returns whether the list has changed. Sorts it and removes duplicates.
bool replace(std::vector<int>& list, const std::vector<int>& by)
{
    std::vector<int> sorted = by;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const bool changes = sorted != list;
    list = std::move(sorted);
    return changes;
}
} // namespace

bool GroupMarks::setPicking(bool picking)
{
    return std::exchange(m_isPicking, picking) != picking;
}

bool GroupMarks::setPicked(const std::vector<int>& groups)
{
    return replace(m_picked, groups);
}

bool GroupMarks::setHovered(int group)
{
    return std::exchange(m_hovered, group) != group;
}

bool GroupMarks::setHighlighted(int group)
{
    return std::exchange(m_highlighted, group) != group;
}

bool GroupMarks::setSelected(const std::vector<int>& groups)
{
    return replace(m_selected, groups);
}

bool GroupMarks::setColours(const std::map<int, unsigned>& colours)
{
    const bool changes = m_colours != colours;
    m_colours = colours;
    return changes;
}

unsigned GroupMarks::colourOf(int group) const
{
    const auto found = m_colours.find(group);
    return found == m_colours.end() ? 0U : found->second;
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
    return group == m_highlighted || group == m_hovered ||
           std::binary_search(m_selected.begin(), m_selected.end(), group);
}

GroupMark GroupMarks::markOf(int group, bool isAnyLit) const
{
    if (hasColours())
        return isLit(group) || (m_isPicking && isPicked(group)) ? GroupMark::Lit : GroupMark::None;
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
