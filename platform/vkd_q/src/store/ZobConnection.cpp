#include "ZobConnection.h"

#include "vkd_lib_value.h"
#include "zobFileCheck.h"
#include "zobSchema.h"
#include "ZobStatus.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <chrono>
#include <thread>

namespace {
constexpr int DefaultLockDeadline = 5000; // ms

const QLatin1String InMemory(":memory:");

constexpr char Schema[] = "BEGIN;" ZOB_RECORD_TABLE ";"
                          "PRAGMA application_id = 1447773250;"
                          "PRAGMA user_version = 1;"
                          "COMMIT;";
static_assert(ZobApplicationId == 1447773250 && ZobSchemaVersion == 1);

// With a deleted journal, FULL can lose a commit in a power cut.
constexpr char Durability[] = "PRAGMA synchronous = EXTRA;";

/// Called by SQLite while another program holds the file: sleeps shortly and gives up after the
/// deadline. Short sleeps keep a queue of writers fair.
int waitForOther(void*, int calls)
{
    using Clock = std::chrono::steady_clock;
    static thread_local Clock::time_point start;
    if (calls == 0)
        start = Clock::now();
    const int setting = vkd_lib_getvalue(VKD_SETTING_LOCK_DEADLINE);
    const int deadline = setting > 0 ? setting : DefaultLockDeadline;
    if (Clock::now() - start >= std::chrono::milliseconds(deadline))
        return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return 1;
}

/// A file without any write permission is meant to stay as it is, even if this user could write it.
bool isWriteProtected(const QString& path)
{
    const QFileInfo file(path);
    const auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !(file.permissions() & anyWrite) || !file.isWritable();
}
} // namespace

void ZobConnection::Closer::operator()(sqlite3* connection) const
{
    sqlite3_close(connection);
}

ZobConnection::ZobConnection(const QString& path)
    : m_path(path)
{
}

cd_error_t ZobConnection::open(const VkdGoOn& goOn)
{
    if (!QFileInfo(m_path).isFile())
        return reportZob(VKD_ZOB_NO_FILE, "open", m_path);
    if (QFileInfo(m_path).size() == 0) // would pass as a sound database without tables
        return reportZob(VKD_ZOB_NO_PROJECT, "open", m_path, QStringLiteral("it is empty"));
    cd_error_t status =
        connect(isWriteProtected(m_path) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    if (status == VKD_ZOB_OK)
        status = checkZobFile(*this, goOn);
    return status == VKD_ZOB_OK ? execute(Durability, "open") : status;
}

cd_error_t ZobConnection::create()
{
    // Made exclusively, so that two programs cannot both believe that the file is theirs.
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return reportZob(VKD_ZOB_NO_FILE, "create", m_path, file.errorString());
    file.close();
    cd_error_t status = connect(SQLITE_OPEN_READWRITE);
    if (status == VKD_ZOB_OK)
        status = makeSchema();
    if (status != VKD_ZOB_OK) {
        m_handle.reset();
        file.remove();
    }
    return status;
}

cd_error_t ZobConnection::openInMemory()
{
    m_path = InMemory;
    const cd_error_t status = connect(SQLITE_OPEN_READWRITE);
    return status == VKD_ZOB_OK ? makeSchema() : status;
}

cd_error_t ZobConnection::connect(int flags)
{
    sqlite3* connection = nullptr;
    // Absolute, because SQLite would take "file:x" for an address.
    const QByteArray path = m_path == InMemory
                                ? m_path.toUtf8()
                                : QFile::encodeName(QFileInfo(m_path).absoluteFilePath());
    const int code = sqlite3_open_v2(path.constData(), &connection, flags, nullptr);
    m_handle.reset(connection);
    if (code != SQLITE_OK)
        return reportZob(VKD_ZOB_NO_FILE, "open", m_path, QString::fromUtf8(sqlite3_errstr(code)));
    sqlite3_extended_result_codes(connection, 0);
    sqlite3_busy_handler(connection, waitForOther, nullptr);
    return VKD_ZOB_OK;
}

cd_error_t ZobConnection::makeSchema()
{
    const cd_error_t status = execute(Durability, "create");
    return status == VKD_ZOB_OK ? execute(Schema, "create") : status;
}

bool ZobConnection::isReadOnly() const
{
    return sqlite3_db_readonly(handle(), "main") != 0;
}

bool ZobConnection::isInTransaction() const
{
    return sqlite3_get_autocommit(handle()) == 0;
}

cd_error_t ZobConnection::number(const char* sql, int* value)
{
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(handle(), sql, -1, &statement, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(statement);
    if (code == SQLITE_ROW)
        *value = sqlite3_column_int(statement, 0);
    const cd_error_t status = code == SQLITE_ROW ? cd_error_t(VKD_ZOB_OK) : fail(code, "open");
    sqlite3_finalize(statement);
    return status;
}

cd_error_t ZobConnection::execute(const char* sql, const char* action)
{
    const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    return code == SQLITE_OK ? cd_error_t(VKD_ZOB_OK) : fail(code, action);
}

cd_error_t ZobConnection::fail(int sqliteCode, const char* action) const
{
    return reportZob(zobStatus(handle(), sqliteCode), action, m_path,
                     QString::fromUtf8(sqlite3_errmsg(handle())));
}
