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

bool GroupMarks::isLit(const GroupPart& part) const
{
    return isLit(part.group) || std::any_of(part.secondary.begin(), part.secondary.end(),
                                            [this](int group) { return isLit(group); });
}

bool GroupMarks::isLit(int group) const
{
    return group == m_highlighted || group == m_hovered ||
           std::binary_search(m_selected.begin(), m_selected.end(), group);
}

GroupMark GroupMarks::markOf(const GroupPart& part, bool isAnyLit) const
{
    const bool isPickedPart = m_isPicking && isPicked(part.group);
    if (hasColours())
        return isLit(part) || isPickedPart ? GroupMark::Lit : GroupMark::None;
    if (isPickedPart)
        return isLit(part) ? GroupMark::PickedLit : GroupMark::Picked;
    if (isLit(part))
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
