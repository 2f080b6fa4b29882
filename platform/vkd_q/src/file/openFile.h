#pragma once

#include "vkd_zob.h"

#include <QtGlobal>

struct sqlite3;

// The file of an open connection, through the descriptor of the connection. No other descriptor may
// be opened for the same file: closing it would drop all locks of the process on the file.

/// Reads from the file without a lock.
bool readFile(sqlite3* connection, void* bytes, int length, qint64 offset);

/// Passes all bytes of the file to `take`. The caller must hold a lock.
VkdZobStatus copyFile(sqlite3* connection, const VkdZobTake& take);
