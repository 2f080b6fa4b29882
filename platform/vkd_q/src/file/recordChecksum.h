#pragma once

#include <utility>

struct sqlite3;

// Each record is stored with eight more bytes at its end: a checksum of its bytes, its keys and its
// position, XXH3 with 64 bits, little-endian. So a bit that flips in the file is detected.

constexpr int ChecksumBytes = 8;

/// Returns whether the stored bytes end with the checksum of the bytes before.
bool hasChecksum(std::pair<int, int> pair, int position, const void* bytes, int length);

/// Adds two functions of (key1, key2, position, data) to the SQL of the connection: with_checksum
/// returns the bytes to store, has_checksum checks stored ones. Returns SQLite's code.
int addChecksumFunctions(sqlite3* connection);
