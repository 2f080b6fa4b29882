#include "file/ZobConnection.h"

#include "file/recordChecksum.h"
#include "file/stepAsking.h"
#include "file/systemErrors.h"
#include "file/zobFileCheck.h"
#include "file/zobSchema.h"
#include "vkd_zob_deadline.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <chrono>
#include <thread>
#include <utility>

namespace {
const QLatin1String InMemory(":memory:");

// With pages of four times the default size, reading and writing many records takes a quarter less
// time. The page size is set before the size of the cache: SQLite limits the number of pages in the
// cache and does not adjust that number when the page size changes.
constexpr char PageSize[] = "PRAGMA page_size = 16384";
constexpr char Schema[] = "BEGIN;" ZOB_RECORD_TABLE ";"
                          "PRAGMA application_id = 1447773250;"
                          "PRAGMA user_version = 2;"
                          "COMMIT;";
static_assert(ZobApplicationId == 1447773250 && ZobSchemaVersion == 2);

// If the journal is deleted on commit, the mode FULL can lose the commit in a power failure. The
// cache, in KiB, holds the records of 30 000 groups; all pages of a longer sequence are read from
// the file in each pass.
constexpr char FileSettings[] = "PRAGMA synchronous = EXTRA;"
                                "PRAGMA cache_size = -8000;";

// A project needs none of these features.
constexpr std::pair<int, int> Settings[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                            {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                            {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                            {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};
constexpr int RowBytesBesideRecord = 100; // checksum, keys and SQLite's row header
constexpr std::pair<int, int> Limits[] = {
    {SQLITE_LIMIT_LENGTH, ZobMaxRecordBytes + RowBytesBesideRecord},
    {SQLITE_LIMIT_SQL_LENGTH, 10000},
    {SQLITE_LIMIT_ATTACHED, 0}};

/// Called by SQLite while another program holds the lock. Sleeps briefly and gives up after the
/// deadline. Short sleeps give all waiting writers a fair chance.
int waitForOther(void*, int calls)
{
    using Clock = std::chrono::steady_clock;
    static thread_local Clock::time_point start;
    if (calls == 0)
        start = Clock::now();
    if (Clock::now() - start >= std::chrono::milliseconds(vkd_zob_deadline()))
        return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return 1;
}

/// Returns whether the file is read-only. A file without any write permission must not be changed,
/// even if this user could write to it.
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

VkdStatus ZobConnection::open(const VkdGoOn& goOn)
{
    if (!QFileInfo(m_path).isFile())
        return fail(VKD_ZOB_NO_FILE, ZobAction::Open);
    if (QFileInfo(m_path).size() == 0) // SQLite would accept it as an empty database
        return fail(VKD_ZOB_NO_PROJECT, ZobAction::Open);
    VkdStatus status =
        connect(isWriteProtected(m_path) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    if (status.isOk())
        status = checkZobFile(*this, goOn);
    return status.isOk() ? execute(FileSettings, ZobAction::Open) : status;
}

VkdStatus ZobConnection::create()
{
    // The file is created exclusively so that two programs cannot create the same file.
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return fail(VKD_ZOB_NO_FILE, ZobAction::Create, file.errorString());
    file.close();
    VkdStatus status = connect(SQLITE_OPEN_READWRITE);
    if (status.isOk())
        status = makeSchema();
    if (!status.isOk()) {
        m_handle.reset();
        file.remove();
    }
    return status;
}

VkdStatus ZobConnection::openInMemory()
{
    m_path = InMemory;
    const VkdStatus status = connect(SQLITE_OPEN_READWRITE);
    return status.isOk() ? makeSchema() : status;
}

VkdStatus ZobConnection::openUnchecked()
{
    return connect(SQLITE_OPEN_READWRITE);
}

VkdStatus ZobConnection::connect(int flags)
{
    sqlite3* connection = nullptr;
    // The path must be absolute, because SQLite would treat "file:x" as a URI.
    const QByteArray path = m_path == InMemory
                                ? m_path.toUtf8()
                                : QFile::encodeName(QFileInfo(m_path).absoluteFilePath());
    // Calls are never concurrent, so SQLite needs no mutex.
    const int code =
        sqlite3_open_v2(path.constData(), &connection, flags | SQLITE_OPEN_NOMUTEX, zobVfs());
    m_handle.reset(connection);
    if ((code & 0xff) == SQLITE_IOERR)
        return failToOpen(code);
    if (code != SQLITE_OK)
        return fail(VKD_ZOB_NO_FILE, ZobAction::Open, failureDetail(code, takeSystemError()));
    sqlite3_extended_result_codes(connection, 0);
    setWaiting(true);
    int prepared = restrictConnection();
    if (prepared == SQLITE_OK)
        prepared = addChecksumFunctions(connection);
    return prepared == SQLITE_OK ? VkdStatus() : fail(prepared, ZobAction::Open);
}

int ZobConnection::restrictConnection()
{
    for (const auto& [setting, value] : Settings)
        if (const int code = sqlite3_db_config(handle(), setting, value, nullptr);
            code != SQLITE_OK)
            return code;
    for (const auto& [limit, value] : Limits)
        sqlite3_limit(handle(), limit, value);
    return sqlite3_exec(handle(), "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr);
}

VkdStatus ZobConnection::makeSchema()
{
    VkdStatus status;
    for (const char* sql : {PageSize, FileSettings, Schema})
        if (status.isOk())
            status = execute(sql, ZobAction::Create);
    return status;
}

bool ZobConnection::isReadOnly() const
{
    return sqlite3_db_readonly(handle(), "main") != 0;
}

bool ZobConnection::isInTransaction() const
{
    return sqlite3_get_autocommit(handle()) == 0;
}

bool ZobConnection::isAway() const
{
    int hasMoved = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    return hasMoved != 0;
}

bool ZobConnection::hasJournal() const
{
    const char* path = sqlite3_db_filename(handle(), "main");
    return path && *path && QFile::exists(QFile::decodeName(sqlite3_filename_journal(path)));
}

void ZobConnection::setWaiting(bool waits)
{
    sqlite3_busy_handler(handle(), waits ? waitForOther : nullptr, nullptr);
}

VkdStatus ZobConnection::number(const char* sql, int* value, const VkdGoOn& goOn)
{
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(handle(), sql, -1, &statement, nullptr);
    if (code == SQLITE_OK)
        code = stepAsking(statement, goOn);
    if (code == SQLITE_ROW)
        *value = sqlite3_column_int(statement, 0);
    const VkdStatus status = code == SQLITE_ROW ? VkdStatus() : failToOpen(code);
    sqlite3_finalize(statement);
    return status;
}

VkdStatus ZobConnection::execute(const char* sql, ZobAction action)
{
    const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    return code == SQLITE_OK ? VkdStatus() : fail(code, action);
}

VkdStatus ZobConnection::fail(int sqliteCode, ZobAction action)
{
    const int systemError = takeSystemError();
    // The store never writes a record of this size.
    const bool isTooBigToRead = (sqliteCode & 0xff) == SQLITE_TOOBIG && action != ZobAction::Write;
    const auto code = isTooBigToRead ? VKD_ZOB_DAMAGED
                                     : VkdZobStatus(zobStatus(handle(), sqliteCode, systemError));
    return fail(code, action, failureDetail(sqliteCode, systemError));
}

QString ZobConnection::failureDetail(int sqliteCode, int systemError) const
{
    const int code = sqliteCode & 0xff;
    const bool isSystemError =
        code == SQLITE_IOERR || code == SQLITE_FULL || code == SQLITE_CANTOPEN;
    return isSystemError && systemError ? qt_error_string(systemError)
                                        : QString::fromUtf8(sqlite3_errmsg(handle()));
}

VkdStatus ZobConnection::failToOpen(int sqliteCode)
{
    if (sqliteCode == SQLITE_INTERRUPT) // cancelled by the caller
        return zobFailure(VKD_ZOB_CANCELLED, ZobAction::Open, m_path);
    return fail(sqliteCode,
                (sqliteCode & 0xff) == SQLITE_IOERR ? ZobAction::Read : ZobAction::Open);
}

VkdStatus ZobConnection::fail(VkdZobStatus code, ZobAction action, const QString& detail)
{
    m_lastFailure = reportZobFailure(code, action, m_path, detail);
    return m_lastFailure;
}
