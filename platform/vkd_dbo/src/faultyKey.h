#pragma once

#include <QByteArray>

namespace vkd {
namespace dbo {

/// The most keys that an object may have, far more than any object of a model file has. Qt's parser
/// takes much longer than linear time for a million keys in one object.
constexpr int MostKeys = 1000;

/// A key of a JSON text that makes a model file invalid.
struct FaultyKey
{
    enum Fault { None, Repeated, TooMany };
    Fault fault = None;
    int offset = 0;
};

/// Returns the first repeated key within an object, or the first key after MostKeys keys. Qt's
/// parser silently drops and leaks one of the two values of a repeated key. Keys are compared as
/// written, without decoding escape sequences. If the text is invalid, repeated keys may be missed.
FaultyKey findFaultyKey(const QByteArray& json);

} // namespace dbo
} // namespace vkd
