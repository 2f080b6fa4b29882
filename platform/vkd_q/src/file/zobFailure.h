#pragma once

#include "vkd_status.h"
#include "vkd_zob.h"

struct sqlite3;

/// The operation that failed. Each one has a sentence of its own, because German has a different
/// word order.
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

/// Converts an errno to a status.
cd_error_t statusOfSystemError(int error);

/// Converts the code of the last SQLite call on `connection` to a status. `systemError` is the
/// errno of the access to the file that failed, 0 if there was none.
cd_error_t zobStatus(sqlite3* connection, int sqliteCode, int systemError);

/// Returns the status of a failed operation on `file` in the desktop's language, without logging.
/// `detail` is the message of the system or of SQLite.
VkdStatus zobFailure(cd_error_t code, ZobAction action, const QString& file,
                     const QString& detail = QString());

/// Returns the same status and writes the English log line of the failed operation.
VkdStatus reportZobFailure(cd_error_t code, ZobAction action, const QString& file,
                           const QString& detail = QString());
