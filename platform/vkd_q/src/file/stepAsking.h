#pragma once

#include "vkd_progress.h"

struct sqlite3_stmt;

/// Executes a long statement up to its next row, calling `goOn` before and meanwhile. Returns
/// SQLite's code, SQLITE_INTERRUPT if `goOn` returned false.
int stepAsking(sqlite3_stmt* statement, const VkdGoOn& goOn);
