#include "zobFileCheck.h"

#include "ZobConnection.h"
#include "zobSchema.h"
#include "ZobStatus.h"

#include <sqlite3.h>

namespace {
constexpr int StepsToQuestion = 20000; // of SQLite's machine, some ms

// What a project is made of, and nothing else: a view could run for ever, and a trigger change what
// is put.
constexpr char ForeignSql[] =
    "SELECT count(*) != 1 OR min(sql) IS NOT '" ZOB_RECORD_TABLE "' FROM sqlite_master";

/// Called by SQLite in the middle of a statement.
int isToStop(void* goOn)
{
    return (*static_cast<const VkdGoOn*>(goOn))(0) ? 0 : 1;
}

cd_error_t checkTable(ZobConnection& connection)
{
    int isForeign = 0;
    const cd_error_t status = connection.number(ForeignSql, &isForeign);
    if (status == VKD_ZOB_OK && isForeign)
        return reportZob(VKD_ZOB_DAMAGED, "open", connection.path(),
                         QStringLiteral("its table is another"));
    return status;
}

cd_error_t quickCheck(ZobConnection& connection)
{
    sqlite3_stmt* check = nullptr;
    int code =
        sqlite3_prepare_v2(connection.handle(), "PRAGMA quick_check(1)", -1, &check, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(check);
    const auto* text = code == SQLITE_ROW ? sqlite3_column_text(check, 0) : nullptr;
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(text)).simplified();
    cd_error_t status = VKD_ZOB_OK;
    if (code == SQLITE_INTERRUPT)
        status = VKD_ZOB_CANCELLED;
    else if (code != SQLITE_ROW)
        status = connection.fail(code, "open");
    else if (result != QLatin1String("ok"))
        status = reportZob(VKD_ZOB_DAMAGED, "open", connection.path(), result);
    sqlite3_finalize(check);
    return status == VKD_ZOB_OK ? checkTable(connection) : status;
}

cd_error_t checkSoundness(ZobConnection& connection, const VkdGoOn& goOn)
{
    if (goOn)
        sqlite3_progress_handler(connection.handle(), StepsToQuestion, isToStop,
                                 const_cast<VkdGoOn*>(&goOn));
    const cd_error_t status = quickCheck(connection);
    sqlite3_progress_handler(connection.handle(), 0, nullptr, nullptr);
    return status;
}
} // namespace

cd_error_t checkZobFile(ZobConnection& connection, const VkdGoOn& goOn)
{
    int id = 0;
    int version = 0;
    cd_error_t status = connection.number("PRAGMA application_id", &id);
    if (status == VKD_ZOB_OK && id != ZobApplicationId)
        status = reportZob(VKD_ZOB_NO_PROJECT, "open", connection.path());
    if (status == VKD_ZOB_OK)
        status = connection.number("PRAGMA user_version", &version);
    if (status == VKD_ZOB_OK && version != ZobSchemaVersion)
        status = reportZob(version > ZobSchemaVersion ? VKD_ZOB_NEWER : VKD_ZOB_DAMAGED, "open",
                           connection.path(), QStringLiteral("version %1").arg(version));
    return status == VKD_ZOB_OK ? checkSoundness(connection, goOn) : status;
}
