#include "file/zobFileCheck.h"

#include "file/ZobConnection.h"
#include "file/zobSchema.h"

#include <sqlite3.h>

namespace {
constexpr int StepsToQuestion = 20000; // SQLite instructions, some ms

// A project contains the record table only. A view could run endlessly, and a trigger could change
// the records that are put.
constexpr char ForeignSql[] =
    "SELECT count(*) != 1 OR min(sql) IS NOT '" ZOB_RECORD_TABLE "' FROM sqlite_master";

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

VkdStatus quickCheck(ZobConnection& connection)
{
    sqlite3_stmt* check = nullptr;
    int code =
        sqlite3_prepare_v2(connection.handle(), "PRAGMA quick_check(1)", -1, &check, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(check);
    const auto* text = code == SQLITE_ROW ? sqlite3_column_text(check, 0) : nullptr;
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(text)).simplified();
    VkdStatus status;
    if (code == SQLITE_INTERRUPT)
        status = zobFailure(VKD_ZOB_CANCELLED, ZobAction::Open, connection.path());
    else if (code != SQLITE_ROW)
        status = connection.fail(code, ZobAction::Open);
    else if (result != QLatin1String("ok"))
        status = connection.fail(VKD_ZOB_DAMAGED, ZobAction::Open, result);
    sqlite3_finalize(check);
    return status.isOk() ? checkTable(connection) : status;
}

VkdStatus checkSoundness(ZobConnection& connection, const VkdGoOn& goOn)
{
    if (goOn)
        sqlite3_progress_handler(connection.handle(), StepsToQuestion, isToStop,
                                 const_cast<VkdGoOn*>(&goOn));
    const VkdStatus status = quickCheck(connection);
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
    if (status.isOk() && version != ZobSchemaVersion)
        status = connection.fail(version > ZobSchemaVersion ? VKD_ZOB_NEWER : VKD_ZOB_DAMAGED,
                                 ZobAction::Open, QStringLiteral("version %1").arg(version));
    return status.isOk() ? checkSoundness(connection, goOn) : status;
}
