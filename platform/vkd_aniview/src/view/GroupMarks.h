#pragma once

#include <vector>

namespace vkd {
namespace aniview {

/// The highlighting of a group. A group is dimmed if it is neither highlighted nor picked while
/// another group is highlighted. It is pale if it is not picked while other groups are.
enum class GroupMark { None, Dimmed, Pale, Lit, Picked, PickedLit };

/// The numbers of the picked, the hovered and the highlighted groups of a view.
class GroupMarks
{
public:
    static constexpr int NoGroup = -1;

    /// Each setter returns whether the value has changed.
    bool setPicking(bool picking);
    bool setPicked(const std::vector<int>& groups);
    bool setHovered(int group);
    bool setHighlighted(int group);
    void toggle(int group);

    bool isPicking() const { return m_isPicking; }
    int hovered() const { return m_hovered; }
    const std::vector<int>& picked() const { return m_picked; } ///< ascending, without duplicates

    bool isLit(int group) const;
    /// Returns the mark of a group. `isAnyLit` specifies whether any visible group is highlighted.
    /// Picked groups are marked only while picking is enabled.
    GroupMark markOf(int group, bool isAnyLit) const;

private:
    bool isPicked(int group) const;

    std::vector<int> m_picked;
    bool m_isPicking = false;
    int m_hovered = NoGroup;
    int m_highlighted = NoGroup;
};

} // namespace aniview
} // namespace vkd
