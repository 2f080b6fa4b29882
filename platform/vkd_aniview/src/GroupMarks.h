#pragma once

#include <vector>

namespace vkd {
namespace aniview {

/// Dimmed are those beside a lit one, pale are those that are not picked.
enum class GroupMark { None, Dimmed, Pale, Lit, Picked, PickedLit };

/// Which groups are picked and which one is lit up, by their numbers.
class GroupMarks
{
public:
    static constexpr int NoGroup = -1;

    /// Each change answers whether there was one.
    bool setPicking(bool picking);
    bool setPicked(const std::vector<int>& groups);
    bool setHovered(int group);
    bool setHighlighted(int group);
    void toggle(int group);

    bool isPicking() const { return m_isPicking; }
    int hovered() const { return m_hovered; }
    const std::vector<int>& picked() const { return m_picked; } ///< ascending, each once

    bool isLit(int group) const;
    /// How a group looks when one of those in the picture is lit, or none. Picked groups show while
    /// picking only.
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
