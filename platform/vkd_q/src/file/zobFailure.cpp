#include "file/zobFailure.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <sqlite3.h>

#include <cerrno>

namespace {
Q_LOGGING_CATEGORY(lcZob, "vkd.zob")

const char* sentence(ZobAction action)
{
    switch (action) {
    case ZobAction::Open: return QT_TRANSLATE_NOOP("ZobTexts", "cannot open %1: %2");
    case ZobAction::Create: return QT_TRANSLATE_NOOP("ZobTexts", "cannot create %1: %2");
    case ZobAction::Close: return QT_TRANSLATE_NOOP("ZobTexts", "cannot close %1: %2");
    case ZobAction::Read: return QT_TRANSLATE_NOOP("ZobTexts", "cannot read %1: %2");
    case ZobAction::Search: return QT_TRANSLATE_NOOP("ZobTexts", "cannot search %1: %2");
    case ZobAction::Write: return QT_TRANSLATE_NOOP("ZobTexts", "cannot write %1: %2");
    case ZobAction::TakeLock: return QT_TRANSLATE_NOOP("ZobTexts", "cannot lock %1: %2");
    case ZobAction::StoreChanges:
        return QT_TRANSLATE_NOOP("ZobTexts", "cannot store the changes in %1: %2");
    case ZobAction::UndoChanges:
        return QT_TRANSLATE_NOOP("ZobTexts", "cannot undo the changes in %1: %2");
    case ZobAction::Use: break;
    }
    return QT_TRANSLATE_NOOP("ZobTexts", "cannot use database %1: %2");
}

const char* reasonOf(cd_error_t code)
{
    switch (code) {
    case VKD_ZOB_NOT_OPEN:
        return QT_TRANSLATE_NOOP("ZobTexts", "no project is open with this index");
    case VKD_ZOB_NO_FILE:
        return QT_TRANSLATE_NOOP("ZobTexts", "the file does not exist or cannot be opened");
    case VKD_ZOB_NO_PROJECT: return QT_TRANSLATE_NOOP("ZobTexts", "the file is not a project file");
    case VKD_ZOB_NEWER:
        return QT_TRANSLATE_NOOP("ZobTexts", "the file was written by a newer version");
    case VKD_ZOB_DAMAGED: return QT_TRANSLATE_NOOP("ZobTexts", "the file is damaged");
    case VKD_ZOB_READ_ONLY:
        return QT_TRANSLATE_NOOP("ZobTexts", "the file or its folder is write-protected");
    case VKD_ZOB_FULL:
        return QT_TRANSLATE_NOOP("ZobTexts", "the disk is full or does not accept the data");
    case VKD_ZOB_LOCKED:
        return QT_TRANSLATE_NOOP("ZobTexts", "another program has locked the project");
    case VKD_ZOB_MOVED:
        return QT_TRANSLATE_NOOP("ZobTexts",
                                 "the file was deleted, moved or replaced while it was open");
    case VKD_ZOB_BAD_CALL: return QT_TRANSLATE_NOOP("ZobTexts", "an argument is out of range");
    case VKD_ZOB_CANCELLED: return QT_TRANSLATE_NOOP("ZobTexts", "it was cancelled");
    default: return QT_TRANSLATE_NOOP("ZobTexts", "the system failed to read or write");
    }
}

QString asWritten(const char* source)
{
    return QString::fromUtf8(source);
}

/// Translates the message to the desktop language. The translation file of vkd_qt contains the
/// German messages.
QString inDesktopsLanguage(const char* source)
{
    return QCoreApplication::translate("ZobTexts", source);
}

QString line(cd_error_t code, ZobAction action, const QString& file, const QString& detail,
             QString (*text)(const char* source))
{
    const QString tail = detail.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(detail);
    return vkd_oneLine(text(sentence(action)).arg(file, text(reasonOf(code)) + tail));
}
} // namespace

cd_error_t statusOfSystemError(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return VKD_ZOB_FULL;
    case EACCES:
    case EPERM:
    case EROFS: return VKD_ZOB_READ_ONLY;
    default: return VKD_ZOB_FAILED;
    }
}

cd_error_t zobStatus(sqlite3* connection, int sqliteCode, int systemError)
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
        return sqlite3_extended_errcode(connection) == SQLITE_READONLY_DBMOVED ? VKD_ZOB_MOVED
                                                                               : VKD_ZOB_READ_ONLY;
    case SQLITE_PERM: return VKD_ZOB_READ_ONLY;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN: return statusOfSystemError(systemError);
    case SQLITE_TOOBIG:
    case SQLITE_MISUSE:
    case SQLITE_RANGE: return VKD_ZOB_BAD_CALL;
    default: return VKD_ZOB_FAILED;
    }
}

VkdStatus zobFailure(cd_error_t code, ZobAction action, const QString& file, const QString& detail)
{
    return {code, line(code, action, file, detail, inDesktopsLanguage)};
}

VkdStatus reportZobFailure(cd_error_t code, ZobAction action, const QString& file,
                           const QString& detail)
{
    qCWarning(lcZob, "%s", qUtf8Printable(line(code, action, file, detail, asWritten)));
    return zobFailure(code, action, file, detail);
}
