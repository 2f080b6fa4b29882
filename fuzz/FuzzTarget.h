#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Each file in targets/ defines this function, which reads one input and checks properties that
/// hold for any input. It is called by clang's libFuzzer or, without libFuzzer, by
/// mutationRunner.cpp.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

namespace fuzz {

/// Terminates the process if the condition is false.
void check(bool condition, const char* text);
#define FUZZ_CHECK(condition) fuzz::check(condition, #condition)

/// Checks that the message for a refused input consists of exactly one line and is not empty.
void checkReason(const QString& reason);

/// Returns the bytes without copying them.
QByteArray bytesOf(const uint8_t* bytes, size_t size);
QString textOf(const uint8_t* bytes, size_t size);

/// Writes a file with this name to the temporary folder of the process and returns its path.
QString file(const char* name, const QByteArray& bytes);

} // namespace fuzz
