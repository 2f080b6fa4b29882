#pragma once

#include "vkd_h_export.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace vkd {
namespace h {

/// The groups listed in user input, whose parts are separated by spaces, commas or semicolons.
/// Processing time and memory are bounded by the length of the input and the number of the groups
/// that it lists.
struct GroupInput
{
    std::vector<int> groups; ///< existing groups, ascending
    QStringList unreadable;  ///< parts that cannot be parsed
    QStringList missing;     ///< parts that do not match an existing group
};

/// Reads numbers and ranges such as 1-5. The bounds of a range may be in either order, with any
/// kind of dash between them. A range represents the existing groups within it. If there are none,
/// the range is reported as missing. `existing` must be ascending.
VKD_H_EXPORT GroupInput readNumbers(const QString& text, const std::vector<int>& existing);

/// The names of existing secondary groups, prepared for reading many strings.
class VKD_H_EXPORT GroupNames
{
public:
    /// `packed` contains packed names in ascending order.
    explicit GroupNames(const std::vector<int>& packed);

    const std::vector<int>& packed() const { return m_packed; }
    bool contains(int packed) const;
    /// Returns the packed names that match. Matching is case-insensitive, except for names that
    /// differ only in case.
    QList<int> alike(const QString& name) const;

private:
    std::vector<int> m_packed;
    QMultiHash<QString, int> m_byFoldedName;
};

/// Reads names of secondary groups.
VKD_H_EXPORT GroupInput readNames(const QString& text, const GroupNames& existing);

/// Reads numbers, ranges and names of secondary groups from one string. Any other part is reported
/// as missing, because any string could be a name.
VKD_H_EXPORT GroupInput readNumbersAndNames(const QString& text, const std::vector<int>& numbers,
                                            const GroupNames& names);

} // namespace h
} // namespace vkd
