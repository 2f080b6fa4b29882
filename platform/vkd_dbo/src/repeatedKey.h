#pragma once

#include <QByteArray>

namespace vkd {
namespace dbo {

/// Returns the position of a repeated key within an object of a JSON text, or -1 if there is none.
/// Qt's parser silently drops and leaks one of the two values. Keys are compared as written,
/// without decoding escape sequences. If the text is invalid, repeated keys may be missed.
int findRepeatedKey(const QByteArray& json);

} // namespace dbo
} // namespace vkd
