#include "file/zobFileCheck.h"

#include "file/openFile.h"
#include "file/ZobConnection.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

namespace {
constexpr int StepsToQuestion = 20000; // SQLite instructions, some ms

// A project contains the record table only. A view could run endlessly, and a trigger could change
// the records that are put.
constexpr char ForeignSql[] =
    "SELECT count(*) != 1 OR min(sql) IS NOT '" ZOB_RECORD_TABLE "' FROM sqlite_master";

// A record that is not in its place is found here, too: a flipped bit of a key would hide it.
constexpr char DamagedRecordSql[] =
    "SELECT EXISTS(SELECT 1 FROM record WHERE NOT has_checksum(key1, key2, position, data))";

/// Called by SQLite during a statement.
int isToStop(void* goOn)
{
    return (*static_cast<const VkdGoOn*>(goOn))(0) ? 0 : 1;
}

VkdStatus checkTable(ZobConnection& connection)
{
    int isForeign = 0;
    const VkdStatus status = connection.number(ForeignSql, &isForeign);
    return status.isOk() && isForeign ? connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open) : status;
}

VkdStatus checkRecords(ZobConnection& connection)
{
    int isDamaged = 0;
    const VkdStatus status = connection.number(DamagedRecordSql, &isDamaged);
    return status.isOk() && isDamaged
               ? connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open,
                                 QStringLiteral("the checksum of a record is wrong"))
               : status;
}

/// Runs the check of SQLite's structures and sets `finding` to its first one, empty if there is
/// none.
VkdStatus quickCheck(ZobConnection& connection, QString* finding)
{
    sqlite3_stmt* check = nullptr;
    int code =
        sqlite3_prepare_v2(connection.handle(), "PRAGMA quick_check(1)", -1, &check, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(check);
    const auto* text = code == SQLITE_ROW ? sqlite3_column_text(check, 0) : nullptr;
    *finding = QString::fromUtf8(reinterpret_cast<const char*>(text)).simplified();
    if (*finding == QLatin1String("ok"))
        finding->clear();
    const VkdStatus status = code == SQLITE_ROW ? VkdStatus() : connection.failToOpen(code);
    sqlite3_finalize(check);
    return status;
}

/// The check reports a page that cannot be read as a finding, too. So after a finding, all bytes
/// are read, and the check is repeated in case a read failed only once.
VkdStatus checkStructure(ZobConnection& connection)
{
    QString finding;
    VkdStatus status = quickCheck(connection, &finding);
    if (status.isOk() && !finding.isEmpty())
        status = isReadable(connection.handle()) ? quickCheck(connection, &finding)
                                                 : connection.failToOpen(SQLITE_IOERR);
    return status.isOk() && !finding.isEmpty()
               ? connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open, finding)
               : status;
}

VkdStatus checkSoundness(ZobConnection& connection, bool hasChecksums, const VkdGoOn& goOn)
{
    if (goOn)
        sqlite3_progress_handler(connection.handle(), StepsToQuestion, isToStop,
                                 const_cast<VkdGoOn*>(&goOn));
    // The check of the structure would execute functions that a foreign table contains.
    VkdStatus status = checkTable(connection);
    if (status.isOk())
        status = checkStructure(connection);
    if (status.isOk() && hasChecksums)
        status = checkRecords(connection);
    sqlite3_progress_handler(connection.handle(), 0, nullptr, nullptr);
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
