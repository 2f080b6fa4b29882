#pragma once

#include "vkd_status.h"
#include "vkd_zob.h"

struct sqlite3;

/// The operation that failed. Each operation has its own sentence, because German has a different
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

/// Converts an errno to a status code.
cd_error_t statusOfSystemError(int error);

/// Converts the result code of the last SQLite call on `connection` to a status code. `systemError`
/// is the errno of the failed file access, or 0 if no access failed.
cd_error_t zobStatus(sqlite3* connection, int sqliteCode, int systemError);

/// Returns the status of a failed operation on `file` in the desktop language, without logging it.
/// `detail` is the message from the operating system or SQLite.
VkdStatus zobFailure(cd_error_t code, ZobAction action, const QString& file,
                     const QString& detail = QString());

/// Returns the same status as zobFailure() and logs the failed operation in English.
VkdStatus reportZobFailure(cd_error_t code, ZobAction action, const QString& file,
                           const QString& detail = QString());
