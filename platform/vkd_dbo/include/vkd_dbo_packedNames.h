#pragma once

#include "vkd_dbo_export.h"

#include <QString>

namespace vkd {
namespace dbo {

constexpr int FirstPackedName = 1000000; ///< smaller numbers denote primary groups

/// Returns whether the number denotes a primary group. Negative numbers do not denote a group.
constexpr bool isPrimaryGroup(int group)
{
    return group >= 0 && group < FirstPackedName;
}

constexpr bool isSecondaryGroup(int group)
{
    return group >= FirstPackedName;
}

/// Packs the name of a secondary group into a number, which represents the group in lists of group
/// numbers. The first character is in the lowest byte, and the name is padded with spaces to four
/// bytes. Names have one to four ASCII characters; packed names are greater than FirstPackedName.
VKD_DBO_EXPORT int packedName(const QString& name);

/// Returns the name encoded in a packed number. Accepts any characters.
VKD_DBO_EXPORT QString unpackedName(int packed);

} // namespace dbo
} // namespace vkd
