#pragma once

#include "geometry/ModelGeometry.h"

#include <QHash>

#include <map>

namespace vkd {
namespace aniview {

/// Finds the parts of the groups of a model (see GroupPart). Until sorted() is called, parts are
/// numbered in the order of their first use.
class GroupParts
{
public:
    explicit GroupParts(const QVector<dbo::SecondaryGroup>& groups);

    int ofQuad(int element, int group) { return numberOf({group, m_quads.value(element)}); }
    int ofBeam(int element, int group) { return numberOf({group, m_beams.value(element)}); }
    /// Returns the part of an element that cannot belong to a secondary group.
    int ofGroup(int group) { return numberOf({group, {}}); }

    /// Returns the parts in ascending order. Element `i` of `indexes` receives the index of the
    /// part with number `i`.
    std::vector<GroupPart> sorted(std::vector<int>* indexes) const;

private:
    using Names = QHash<int, std::vector<int>>; // of the secondary groups of each element

    int numberOf(const GroupPart& part);

    Names m_quads;
    Names m_beams;
    std::map<GroupPart, int> m_numbers;
};

} // namespace aniview
} // namespace vkd
