#pragma once

#include "vkd_progress.h"

struct sqlite3_stmt;

/// Executes a long-running statement up to its next row and calls `goOn` before and during the
/// execution. Returns the SQLite result code, which is SQLITE_INTERRUPT if `goOn` returned false.
int stepAsking(sqlite3_stmt* statement, const VkdGoOn& goOn);
