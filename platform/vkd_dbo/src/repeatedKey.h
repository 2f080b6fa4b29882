#pragma once

#include <QByteArray>

namespace vkd {
namespace dbo {

/// Returns the position of a key that is the second one of its name in an object of a JSON text, or
/// -1 if there is none. Qt's parser drops one of the two values without a message, and leaks it.
/// Keys are compared as they are written. The text may be invalid; then it may contain more.
int findRepeatedKey(const QByteArray& json);

} // namespace dbo
} // namespace vkd
