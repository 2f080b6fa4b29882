#pragma once

constexpr int ZobApplicationId = 0x564b4442; // "VKDB"
// The records of version 1 have no checksums. A version 1 file is upgraded on its first change.
constexpr int ZobSchemaVersion = 2;
constexpr int OldestZobSchemaVersion = 1;

// This is far more than any model record needs. The limit bounds the memory that a malicious file
// can make the process allocate.
constexpr int ZobMaxRecordBytes = 256 * 1024 * 1024;

#define ZOB_RECORD_TABLE                                                \
    "CREATE TABLE record(key1 INTEGER NOT NULL, key2 INTEGER NOT NULL," \
    " position INTEGER NOT NULL, data BLOB NOT NULL,"                   \
    " PRIMARY KEY(key1, key2, position)) WITHOUT ROWID"
