#include "view/GroupColours.h"

#include <algorithm>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
// The colours differ in both lightness and hue. Adjacent colours in the list differ most.
constexpr QRgb Hues[] = {0xff56b4e9, 0xffe69f00, 0xff009e73, 0xffcc79a7, 0xfff0e442,
                         0xff0072b2, 0xffd55e00, 0xffa6a6a6, 0xffbb5566, 0xffaad26e};
constexpr int HueCount = sizeof Hues / sizeof *Hues;
constexpr double LeastContrast = 2.4; // between thin lines and the background

QColor mixed(const QColor& a, const QColor& b, double partOfB)
{
    const double partOfA = 1.0 - partOfB;
    return QColor::fromRgbF(partOfA * a.redF() + partOfB * b.redF(),
                            partOfA * a.greenF() + partOfB * b.greenF(),
                            partOfA * a.blueF() + partOfB * b.blueF());
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto range = std::minmax({luminance(a), luminance(b)});
    return (range.second + 0.05) / (range.first + 0.05);
}

double palenessOf(GroupMark mark)
{
    return mark == GroupMark::Pale ? 0.75 : mark == GroupMark::Dimmed ? 0.6 : 0.0;
}
} // namespace

/// After all hues have been used, they are mixed with white or black.
QColor GroupColours::distinctColour(int index)
{
    const QColor hue = QColor::fromRgb(Hues[index % HueCount]);
    const int round = index / HueCount % 3;
    return round == 0 ? hue : mixed(hue, round == 1 ? Qt::white : Qt::black, 0.4);
}

GroupColours::GroupColours(const QPalette& palette, const std::vector<GroupPart>& parts,
                           const GroupMarks& marks, double meshStrength)
    : m_text(palette.color(QPalette::Active, QPalette::Text))
    , m_background(palette.color(QPalette::Active, QPalette::Base))
    , m_highlight(palette.color(QPalette::Active, QPalette::Highlight))
{
    const bool isAnyLit = std::any_of(
        parts.begin(), parts.end(), [&marks](const GroupPart& part) { return marks.isLit(part); });
    m_sets.reserve(parts.size());
    const QColor pale = mixed(mixed(m_text, m_background, 0.5), m_background, 0.75);
    int groups = 0;
    for (size_t i = 0; i < parts.size(); ++i) {
        if (i == 0 || parts[i].group != parts[i - 1].group)
            ++groups;
        const unsigned assigned = marks.colourOf(parts[i].group);
        const QColor own = marks.hasColours() ? pale : distinctColour(groups - 1);
        m_sets.push_back(makeSet(assigned ? QColor::fromRgb(assigned) : own,
                                 marks.markOf(parts[i], isAnyLit), meshStrength));
    }
}

GroupColours::Set GroupColours::makeSet(const QColor& ownColour, GroupMark mark,
                                        double meshStrength) const
{
    const bool isLit = mark == GroupMark::Lit || mark == GroupMark::PickedLit;
    const bool isPicked = mark == GroupMark::Picked || mark == GroupMark::PickedLit;
    const QColor colour = markedColour(ownColour, mark);
    const QColor outline = mixed(m_text, m_background, 0.8 * palenessOf(mark));
    const QColor meshLine = isPicked ? m_background : outline;
    Set set;
    for (int shade = 0; shade < Shades; ++shade) {
        const double dark = 0.45 * (1.0 - shade / double(Shades - 1));
        const QColor fill = mixed(colour, Qt::black, dark);
        const QColor mesh = mixed(fill, meshLine, (isLit || isPicked ? 0.8 : 0.35) * meshStrength);
        set.fills[size_t(shade)] = fill;
        set.meshes[size_t(shade)] = QPen(mesh, 0);
    }
    // Round caps triple the painting time and are visible only on wide lines.
    const Qt::PenCapStyle ends = isLit ? Qt::RoundCap : Qt::SquareCap;
    set.edge = QPen(mixed(outline, colour, 0.2), isLit ? 2.6 : 1.2, Qt::SolidLine, ends);
    set.line = mark == GroupMark::Pale ? mixed(colour, outline, 0.3) : readable(colour);
    set.widening = isLit ? 2.5 : 0.0;
    return set;
}

QColor GroupColours::markedColour(const QColor& colour, GroupMark mark) const
{
    switch (mark) {
    case GroupMark::None:
    case GroupMark::Lit: return colour; // a different hue would look like another group
    case GroupMark::Dimmed:
    case GroupMark::Pale: return mixed(colour, m_background, palenessOf(mark));
    case GroupMark::Picked: return m_highlight;
    case GroupMark::PickedLit: return mixed(m_highlight, m_text, 0.25);
    }
    return colour;
}

/// Mixes the colour with the text colour until a thin line has enough contrast.
QColor GroupColours::readable(QColor colour) const
{
    for (int i = 0; i < 10 && contrast(colour, m_background) < LeastContrast; ++i)
        colour = mixed(colour, m_text, 0.12);
    return colour;
}

} // namespace aniview
} // namespace vkd
