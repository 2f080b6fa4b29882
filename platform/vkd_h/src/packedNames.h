#pragma once

#include <QString>

namespace vkd {
namespace h {

constexpr int FirstPackedName = 1000000; ///< what is below is the number of a primary group

/// The number for a name of one to four characters, see VKD_H_GroupKind.
int packedName(const QString& name);

/// The name in a packed number, with "?" for what nobody can read.
QString unpackedName(int packed);

} // namespace h
} // namespace vkd
