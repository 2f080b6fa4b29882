#pragma once

#include <utility>

struct sqlite3;

// Each record is stored with eight additional bytes at its end: the 64-bit XXH3 checksum of its
// bytes, keys and position, little-endian. The checksum detects flipped bits in the file.

constexpr int ChecksumBytes = 8;

/// Returns whether the stored bytes end with the correct checksum of the preceding bytes.
bool hasChecksum(std::pair<int, int> pair, int position, const void* bytes, int length);

/// Writes the checksum after the `length` bytes of the record.
void writeChecksum(std::pair<int, int> pair, int position, unsigned char* record, int length);

/// Adds two functions of (key1, key2, position, data) to the SQL of the connection: with_checksum
/// returns the bytes to store, and has_checksum checks stored bytes. Returns the SQLite result
/// code.
int addChecksumFunctions(sqlite3* connection);
