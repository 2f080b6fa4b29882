#pragma once

#include "geometry/ModelGeometry.h"

#include <map>
#include <vector>

namespace vkd {
namespace aniview {

/// The highlighting of a part of a group. A part is dimmed if it is neither highlighted nor picked
/// while another part is highlighted. It is pale if it is not picked while other groups are.
enum class GroupMark { None, Dimmed, Pale, Lit, Picked, PickedLit };

/// The numbers of the picked, the hovered, the highlighted and the selected groups of a view, and
/// the colours that its user has assigned to groups.
class GroupMarks
{
public:
    static constexpr int NoGroup = -1;

    /// Each setter returns whether the value has changed.
    bool setPicking(bool picking);
    bool setPicked(const std::vector<int>& groups);
    bool setHovered(int group);
    bool setHighlighted(int group);
    bool setSelected(const std::vector<int>& groups);
    /// The colours have the format of QRgb.
    bool setColours(const std::map<int, unsigned>& colours);
    void toggle(int group);

    bool isPicking() const { return m_isPicking; }
    int hovered() const { return m_hovered; }
    const std::vector<int>& picked() const { return m_picked; } ///< ascending, without duplicates

    /// Returns whether colours are assigned. Groups without a colour are pale in this case.
    bool hasColours() const { return !m_colours.empty(); }
    /// Returns 0 if no colour is assigned to the group.
    unsigned colourOf(int group) const;

    /// Returns whether the group of the part or one of its secondary groups is highlighted.
    bool isLit(const GroupPart& part) const;
    /// Returns the mark of a part. `isAnyLit` specifies whether any visible part is highlighted.
    /// Picked groups are marked only while picking is enabled. Assigned colours are neither dimmed
    /// nor replaced.
    GroupMark markOf(const GroupPart& part, bool isAnyLit) const;

private:
    bool isLit(int group) const;
    bool isPicked(int group) const;

    std::vector<int> m_picked;
    std::vector<int> m_selected;
    std::map<int, unsigned> m_colours;
    bool m_isPicking = false;
    int m_hovered = NoGroup;
    int m_highlighted = NoGroup;
};

} // namespace aniview
} // namespace vkd
