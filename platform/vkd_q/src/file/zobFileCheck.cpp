#include "file/zobFileCheck.h"

#include "file/stepAsking.h"
#include "file/systemErrors.h"
#include "file/ZobConnection.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

namespace {
// A project contains only the record table. A view could run endlessly, and a trigger could change
// the records that are written.
constexpr char ForeignSql[] =
    "SELECT count(*) != 1 OR min(sql) IS NOT '" ZOB_RECORD_TABLE "' FROM sqlite_master";

// This query also finds a record at the wrong position, because a flipped bit in a key would hide
// the record.
constexpr char DamagedRecordSql[] =
    "SELECT EXISTS(SELECT 1 FROM record WHERE NOT has_checksum(key1, key2, position, data))";

VkdStatus checkTable(ZobConnection& connection)
{
    int isForeign = 0;
    const VkdStatus status = connection.number(ForeignSql, &isForeign);
    return status.isOk() && isForeign ? connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open) : status;
}

VkdStatus checkRecords(ZobConnection& connection, const VkdGoOn& goOn)
{
    int isDamaged = 0;
    const VkdStatus status = connection.number(DamagedRecordSql, &isDamaged, goOn);
    return status.isOk() && isDamaged
               ? connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open,
                                 QStringLiteral("the checksum of a record is wrong"))
               : status;
}

/// Checks SQLite's structures and sets `finding` to the first problem, or to an empty string if
/// there is none.
VkdStatus quickCheck(ZobConnection& connection, const VkdGoOn& goOn, QString* finding)
{
    sqlite3_stmt* check = nullptr;
    int code =
        sqlite3_prepare_v2(connection.handle(), "PRAGMA quick_check(1)", -1, &check, nullptr);
    if (code == SQLITE_OK)
        code = stepAsking(check, goOn);
    const auto* text = code == SQLITE_ROW ? sqlite3_column_text(check, 0) : nullptr;
    *finding = QString::fromUtf8(reinterpret_cast<const char*>(text)).simplified();
    if (*finding == QLatin1String("ok"))
        finding->clear();
    const VkdStatus status = code == SQLITE_ROW ? VkdStatus() : connection.failToOpen(code);
    sqlite3_finalize(check);
    return status;
}

/// SQLite's check also reports an unreadable page as a finding.
VkdStatus checkStructure(ZobConnection& connection, const VkdGoOn& goOn)
{
    QString finding;
    takeSystemError();
    const VkdStatus status = quickCheck(connection, goOn, &finding);
    if (!status.isOk() || finding.isEmpty())
        return status;
    const int systemError = takeSystemError();
    return systemError
               ? connection.fail(VKD_ZOB_FAILED, ZobAction::Read, qt_error_string(systemError))
               : connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open, finding);
}

VkdStatus checkSoundness(ZobConnection& connection, bool hasChecksums, const VkdGoOn& goOn)
{
    // All checks read the same state of the file, and only the first check may wait for another
    // program.
    VkdStatus status = connection.execute("BEGIN", ZobAction::Open);
    // This check must be first, because the structure check would execute functions used by a
    // foreign table.
    if (status.isOk())
        status = checkTable(connection);
    if (status.isOk())
        status = checkStructure(connection, goOn);
    if (status.isOk() && hasChecksums)
        status = checkRecords(connection, goOn);
    sqlite3_exec(connection.handle(), "ROLLBACK", nullptr, nullptr, nullptr); // nothing was written
    return status;
}
} // namespace

VkdStatus checkZobFile(ZobConnection& connection, const VkdGoOn& goOn)
{
    int id = 0;
    int version = 0;
    VkdStatus status = connection.number("PRAGMA application_id", &id);
    if (status.isOk() && id != ZobApplicationId)
        status = connection.fail(VKD_ZOB_NO_PROJECT, ZobAction::Open);
    if (status.isOk())
        status = connection.number("PRAGMA user_version", &version);
    if (status.isOk() && (version < OldestZobSchemaVersion || version > ZobSchemaVersion))
        status = connection.fail(version > ZobSchemaVersion ? VKD_ZOB_NEWER : VKD_ZOB_DAMAGED,
                                 ZobAction::Open, QStringLiteral("version %1").arg(version));
    return status.isOk() ? checkSoundness(connection, version >= ZobSchemaVersion, goOn) : status;
}
