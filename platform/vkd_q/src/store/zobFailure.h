#pragma once

#include "vkd_status.h"
#include "vkd_zob.h"

struct sqlite3;

/// What the store could not do. Each is a sentence, because German puts its words in another order.
enum class ZobAction {
    Open,
    Create,
    Close,
    Read,
    Search,
    Write,
    TakeLock,
    StoreChanges,
    UndoChanges,
    Use
};

/// The status that stands for what the last call on `connection` ran into.
cd_error_t zobStatus(sqlite3* connection, int sqliteCode);

/// The status of a failed operation on `file`, in the desktop's language. `detail` is what the
/// system or SQLite says. Without a log line.
VkdStatus zobFailure(cd_error_t code, ZobAction action, const QString& file,
                     const QString& detail = QString());

/// The same, and writes the one log line that a failed operation owes, in English.
VkdStatus reportZobFailure(cd_error_t code, ZobAction action, const QString& file,
                           const QString& detail = QString());
