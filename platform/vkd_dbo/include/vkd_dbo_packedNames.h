#pragma once

#include "vkd_dbo_export.h"

#include <QString>

namespace vkd {
namespace dbo {

constexpr int FirstPackedName = 1000000; ///< smaller numbers are primary groups

/// Packs the name of a secondary group into a number, which represents the group in lists of group
/// numbers. The first character is the lowest byte, and blanks pad the name to four bytes. Names
/// have one to four ASCII characters; their numbers are above FirstPackedName.
VKD_DBO_EXPORT int packedName(const QString& name);

/// Returns the name in a packed number. Any characters are accepted.
VKD_DBO_EXPORT QString unpackedName(int packed);

} // namespace dbo
} // namespace vkd
