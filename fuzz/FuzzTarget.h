#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Each file in targets/ defines this function, which reads one input and checks properties that
/// hold for any input. With clang, libFuzzer calls it; otherwise mutationRunner.cpp does.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

namespace fuzz {

/// Ends the process if the condition is false.
void check(bool condition, const char* text);
#define FUZZ_CHECK(condition) fuzz::check(condition, #condition)

/// Checks the message of a refused input: it is not empty and has one line.
void checkReason(const QString& reason);

/// Returns the bytes without copying them.
QByteArray bytesOf(const uint8_t* bytes, size_t size);
QString textOf(const uint8_t* bytes, size_t size);

/// Writes a file of this name into the temporary folder of the process and returns its path.
QString file(const char* name, const QByteArray& bytes);

} // namespace fuzz
