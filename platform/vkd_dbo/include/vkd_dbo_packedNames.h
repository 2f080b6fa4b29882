#pragma once

#include "vkd_dbo_export.h"

#include <QString>

namespace vkd {
namespace dbo {

constexpr int FirstPackedName = 1000000; ///< what is below is the number of a primary group

/// A list of group numbers holds a secondary group as its name, packed into a number: the first
/// character in the lowest byte, blanks behind. Names have one to four characters of ASCII, and
/// their numbers lie above FirstPackedName.
VKD_DBO_EXPORT int packedName(const QString& name);

/// The name in a packed number, character by character, whatever they are.
VKD_DBO_EXPORT QString unpackedName(int packed);

} // namespace dbo
} // namespace vkd
