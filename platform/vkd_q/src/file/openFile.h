#pragma once

#include "vkd_zob.h"

#include <QtGlobal>

struct sqlite3;

// These functions access the file of an open connection through the connection's own descriptor. No
// other descriptor may be opened for the file, because closing it would release all locks that the
// process holds on the file.

/// Reads from the file without a lock.
bool readFile(sqlite3* connection, void* bytes, int length, qint64 offset);

/// Passes all bytes of the file to `take`. The caller must hold a lock.
VkdZobStatus copyFile(sqlite3* connection, const VkdZobTake& take);
