#pragma once

#include "view/GroupMarks.h"

#include <QBrush>
#include <QPalette>
#include <QPen>

#include <array>

namespace vkd {
namespace aniview {

/// The brushes and pens for the groups of a model. Each group has one colour in several shades. In
/// each part of the group, the colour is modified according to the mark of the part. Colour-blind
/// users can distinguish the colours. All other colours come from the palette of an active window,
/// because a disabled view must not look disabled.
class GroupColours
{
public:
    static constexpr int Shades = 16;

    /// The brushes and pens of one part.
    struct Set
    {
        std::array<QBrush, Shades> fills; ///< dark to light
        std::array<QPen, Shades> meshes;  ///< outlines of elements
        QPen edge;                        ///< plate edges and folds
        QColor line;                      ///< line elements and plates seen edge-on
        double widening;                  ///< additional width of line elements, pixels
    };

    /// `meshStrength`, from 0 to 1, is the contrast of the outlines of elements.
    GroupColours(const QPalette& palette, const std::vector<GroupPart>& parts,
                 const GroupMarks& marks, double meshStrength);

    /// Returns one of the colours that groups have if none is assigned to them. Colours with
    /// adjacent indexes differ most.
    static QColor distinctColour(int index);

    const Set& operator[](int partIndex) const { return m_sets[size_t(partIndex)]; }
    QColor symbol() const { return m_text; }
    QColor background() const { return m_background; }

private:
    Set makeSet(const QColor& ownColour, GroupMark mark, double meshStrength) const;
    QColor markedColour(const QColor& colour, GroupMark mark) const;
    QColor readable(QColor colour) const;

    QColor m_text;
    QColor m_background;
    QColor m_highlight;
    std::vector<Set> m_sets;
};

} // namespace aniview
} // namespace vkd
