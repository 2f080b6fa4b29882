#pragma once

#include "GroupMarks.h"

#include <QBrush>
#include <QPalette>
#include <QPen>

#include <array>

namespace vkd {
namespace aniview {

/// The brushes and pens of the groups of a model: a colour each, in steps of light, changed by the
/// mark of the group. The colours keep apart for colour-blind eyes; the rest follows the palette,
/// always that of an active window, because a locked view is not to look disabled.
class GroupColours
{
public:
    static constexpr int Shades = 16;

    /// What a group is drawn with.
    struct Set
    {
        std::array<QBrush, Shades> fills; ///< dark to light
        std::array<QPen, Shades> meshes;  ///< the outlines of elements
        QPen edge;                        ///< edges of plates, folds
        QColor line;                      ///< line elements, and plates seen edge-on
        double widening;                  ///< of line elements, pixels
    };

    /// `meshStrength` from 0 to 1 is how much the outlines of elements stand out.
    GroupColours(const QPalette& palette, const std::vector<int>& groups, const GroupMarks& marks,
                 double meshStrength);

    const Set& operator[](int groupIndex) const { return m_sets[size_t(groupIndex)]; }
    QColor symbol() const { return m_text; }
    QColor background() const { return m_background; }

private:
    Set makeSet(int groupIndex, GroupMark mark, double meshStrength) const;
    QColor markedColour(int groupIndex, GroupMark mark) const;
    QColor readable(QColor colour) const;

    QColor m_text;
    QColor m_background;
    QColor m_highlight;
    std::vector<Set> m_sets;
};

} // namespace aniview
} // namespace vkd
