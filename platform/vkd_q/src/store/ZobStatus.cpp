#include "ZobStatus.h"

#include <sqlite3.h>

Q_LOGGING_CATEGORY(lcZob, "vkd.zob")

namespace {
const char* reasonOf(cd_error_t status)
{
    switch (status) {
    case VKD_ZOB_NOT_OPEN: return "no project is open under this index";
    case VKD_ZOB_NO_FILE: return "the file is not there or cannot be opened";
    case VKD_ZOB_NO_PROJECT: return "this is no project file";
    case VKD_ZOB_NEWER: return "the file was written by a newer version";
    case VKD_ZOB_DAMAGED: return "the file is damaged";
    case VKD_ZOB_READ_ONLY: return "the file or its folder is write-protected";
    case VKD_ZOB_FULL: return "the disk is full, or it does not take what is written";
    case VKD_ZOB_LOCKED: return "another program holds the project";
    case VKD_ZOB_BAD_CALL: return "an argument is out of range";
    default: return "the system failed to read or write";
    }
}
} // namespace

cd_error_t zobStatus(sqlite3* connection, int sqliteCode)
{
    switch (sqliteCode & 0xff) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE: return VKD_ZOB_OK;
    case SQLITE_NOTADB: return VKD_ZOB_NO_PROJECT;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return VKD_ZOB_LOCKED;
    case SQLITE_CORRUPT: return VKD_ZOB_DAMAGED;
    case SQLITE_FULL: return VKD_ZOB_FULL;
    case SQLITE_READONLY:
    case SQLITE_PERM: return VKD_ZOB_READ_ONLY;
    // The file itself is open by then, so it is the journal beside it that cannot be made.
    case SQLITE_CANTOPEN: return VKD_ZOB_READ_ONLY;
    case SQLITE_TOOBIG:
    case SQLITE_MISUSE:
    case SQLITE_RANGE: return VKD_ZOB_BAD_CALL;
    case SQLITE_IOERR:
        // SQLite knows of a full disk by itself; a used up quota is a failed write to it.
        return sqlite3_extended_errcode(connection) == SQLITE_IOERR_WRITE ? VKD_ZOB_FULL
                                                                          : VKD_ZOB_FAILED;
    default: return VKD_ZOB_FAILED;
    }
}

cd_error_t reportZob(cd_error_t status, const char* action, const QString& file,
                     const QString& detail)
{
    const QString tail = detail.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(detail);
    qCWarning(lcZob, "cannot %s %s: %s%s", action, qUtf8Printable(file), reasonOf(status),
              qUtf8Printable(tail));
    return status;
}
