#include "ZobDatabase.h"

#include "vkd_lib_value.h"
#include "ZobStatus.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

namespace {
constexpr int ApplicationId = 0x564b4442; // "VKDB"
constexpr int SchemaVersion = 1;
constexpr int DefaultLockDeadline = 5000; // ms
constexpr int StepsToQuestion = 20000;    // of SQLite's machine, some ms

const QLatin1String InMemory(":memory:");

#define RECORD_TABLE                                                    \
    "CREATE TABLE record(key1 INTEGER NOT NULL, key2 INTEGER NOT NULL," \
    " position INTEGER NOT NULL, data BLOB NOT NULL,"                   \
    " PRIMARY KEY(key1, key2, position)) WITHOUT ROWID"
constexpr char Schema[] = "BEGIN;" RECORD_TABLE ";"
                          "PRAGMA application_id = 1447773250;"
                          "PRAGMA user_version = 1;"
                          "COMMIT;";
static_assert(ApplicationId == 1447773250 && SchemaVersion == 1);

// What a project is made of, and nothing else: a view could run for ever, and a trigger change what
// is put.
constexpr char ForeignSql[] =
    "SELECT count(*) != 1 OR min(sql) IS NOT '" RECORD_TABLE "' FROM sqlite_master";

constexpr char GetSql[] = "SELECT data FROM record WHERE key1=?1 AND key2=?2 AND position>=?3"
                          " ORDER BY position";
constexpr char AnySql[] = "SELECT 1 FROM record WHERE key1=?1 AND key2=?2 LIMIT 1";
constexpr char NextSql[] = "SELECT key1, key2 FROM record WHERE (key1, key2) >= (?1, ?2)"
                           " ORDER BY key1, key2 LIMIT 1";
constexpr char FirstSql[] = "INSERT OR REPLACE INTO record VALUES(?1, ?2, 0, ?3)";
constexpr char AppendSql[] = "INSERT INTO record SELECT ?1, ?2, ifnull(max(position) + 1, 0), ?3"
                             " FROM record WHERE key1=?1 AND key2=?2";
constexpr char AppendAtSql[] = "INSERT INTO record VALUES(?1, ?2, ?4, ?3)";
constexpr char EndSql[] = "SELECT ifnull(max(position) + 1, 0) FROM record"
                          " WHERE key1=?1 AND key2=?2";
constexpr char ClearSql[] = "DELETE FROM record WHERE key1=?1 AND key2=?2";

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

/// Called by SQLite in the middle of a statement.
int isToStop(void* goOn)
{
    return (*static_cast<const VkdGoOn*>(goOn))(0) ? 0 : 1;
}

/// A file without any write permission is meant to stay as it is, even if this user could write it.
bool isWriteProtected(const QString& path)
{
    const QFileInfo file(path);
    const auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !(file.permissions() & anyWrite) || !file.isWritable();
}
} // namespace

void ZobDatabase::Closer::operator()(sqlite3* connection) const
{
    sqlite3_close(connection);
}

ZobDatabase::ZobDatabase(const QString& path)
    : m_path(path)
{
}

ZobDatabase::~ZobDatabase() = default;

std::unique_ptr<ZobDatabase> ZobDatabase::open(const QString& path, cd_error_t* status,
                                               const VkdGoOn& goOn)
{
    std::unique_ptr<ZobDatabase> database(new ZobDatabase(path));
    if (!QFileInfo(path).isFile())
        *status = reportZob(VKD_ZOB_NO_FILE, "open", path);
    else if (QFileInfo(path).size() == 0) // would pass as a sound database without tables
        *status = reportZob(VKD_ZOB_NO_PROJECT, "open", path, QStringLiteral("it is empty"));
    else if ((*status = database->connect(isWriteProtected(path) ? SQLITE_OPEN_READONLY
                                                                 : SQLITE_OPEN_READWRITE)) ==
             VKD_ZOB_OK)
        *status = database->checkFile(goOn);
    return *status == VKD_ZOB_OK ? std::move(database) : nullptr;
}

std::unique_ptr<ZobDatabase> ZobDatabase::create(const QString& path, cd_error_t* status)
{
    std::unique_ptr<ZobDatabase> database(new ZobDatabase(path));
    // Made exclusively, so that two programs cannot both believe that the file is theirs.
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        *status = reportZob(VKD_ZOB_NO_FILE, "create", path, file.errorString());
        return nullptr;
    }
    file.close();
    *status = database->connect(SQLITE_OPEN_READWRITE);
    if (*status == VKD_ZOB_OK)
        *status = database->makeSchema();
    if (*status == VKD_ZOB_OK)
        return database;
    database.reset();
    file.remove();
    return nullptr;
}

std::unique_ptr<ZobDatabase> ZobDatabase::inMemory(cd_error_t* status)
{
    std::unique_ptr<ZobDatabase> database(new ZobDatabase(InMemory));
    *status = database->connect(SQLITE_OPEN_READWRITE);
    if (*status == VKD_ZOB_OK)
        *status = database->makeSchema();
    return *status == VKD_ZOB_OK ? std::move(database) : nullptr;
}

cd_error_t ZobDatabase::connect(int flags)
{
    sqlite3* connection = nullptr;
    // Absolute, because SQLite would take "file:x" for an address.
    const QByteArray path = m_path == InMemory
                                ? m_path.toUtf8()
                                : QFile::encodeName(QFileInfo(m_path).absoluteFilePath());
    const int code = sqlite3_open_v2(path.constData(), &connection, flags, nullptr);
    m_connection.reset(connection);
    if (code != SQLITE_OK)
        return reportZob(VKD_ZOB_NO_FILE, "open", m_path, QString::fromUtf8(sqlite3_errstr(code)));
    sqlite3_extended_result_codes(connection, 0);
    sqlite3_busy_handler(connection, waitForOther, nullptr);
    return VKD_ZOB_OK;
}

cd_error_t ZobDatabase::makeSchema()
{
    const cd_error_t status = execute("PRAGMA synchronous = EXTRA;", "create");
    return status == VKD_ZOB_OK ? execute(Schema, "create") : status;
}

cd_error_t ZobDatabase::checkFile(const VkdGoOn& goOn)
{
    int id = 0;
    int version = 0;
    cd_error_t status = number("PRAGMA application_id", &id);
    if (status == VKD_ZOB_OK && id != ApplicationId)
        status = reportZob(VKD_ZOB_NO_PROJECT, "open", m_path);
    if (status == VKD_ZOB_OK)
        status = number("PRAGMA user_version", &version);
    if (status == VKD_ZOB_OK && version != SchemaVersion)
        status = reportZob(version > SchemaVersion ? VKD_ZOB_NEWER : VKD_ZOB_DAMAGED, "open",
                           m_path, QStringLiteral("version %1").arg(version));
    if (status == VKD_ZOB_OK)
        status = checkSoundness(goOn);
    if (status == VKD_ZOB_OK) // with a deleted journal, FULL can lose a commit in a power cut
        status = execute("PRAGMA synchronous = EXTRA;", "open");
    return status;
}

cd_error_t ZobDatabase::checkSoundness(const VkdGoOn& goOn)
{
    if (goOn)
        sqlite3_progress_handler(m_connection.get(), StepsToQuestion, isToStop,
                                 const_cast<VkdGoOn*>(&goOn));
    const cd_error_t status = quickCheck();
    sqlite3_progress_handler(m_connection.get(), 0, nullptr, nullptr);
    return status;
}

cd_error_t ZobDatabase::quickCheck()
{
    sqlite3_stmt* check = nullptr;
    int code = sqlite3_prepare_v2(m_connection.get(), "PRAGMA quick_check(1)", -1, &check, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(check);
    const auto* text = code == SQLITE_ROW ? sqlite3_column_text(check, 0) : nullptr;
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(text)).simplified();
    cd_error_t status = VKD_ZOB_OK;
    if (code == SQLITE_INTERRUPT)
        status = VKD_ZOB_CANCELLED;
    else if (code != SQLITE_ROW)
        status = fail(code, "open");
    else if (result != QLatin1String("ok"))
        status = reportZob(VKD_ZOB_DAMAGED, "open", m_path, result);
    sqlite3_finalize(check);
    return status == VKD_ZOB_OK ? checkTable() : status;
}

cd_error_t ZobDatabase::checkTable()
{
    int isForeign = 0;
    const cd_error_t status = number(ForeignSql, &isForeign);
    if (status == VKD_ZOB_OK && isForeign)
        return reportZob(VKD_ZOB_DAMAGED, "open", m_path, QStringLiteral("its table is another"));
    return status;
}

cd_error_t ZobDatabase::number(const char* sql, int* value)
{
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(m_connection.get(), sql, -1, &statement, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_step(statement);
    if (code == SQLITE_ROW)
        *value = sqlite3_column_int(statement, 0);
    const cd_error_t status = code == SQLITE_ROW ? cd_error_t(VKD_ZOB_OK) : fail(code, "open");
    sqlite3_finalize(statement);
    return status;
}

cd_error_t ZobDatabase::execute(const char* sql, const char* action)
{
    const int code = sqlite3_exec(m_connection.get(), sql, nullptr, nullptr, nullptr);
    return code == SQLITE_OK ? cd_error_t(VKD_ZOB_OK) : fail(code, action);
}

cd_error_t ZobDatabase::fail(int sqliteCode, const char* action)
{
    return reportZob(zobStatus(m_connection.get(), sqliteCode), action, m_path,
                     QString::fromUtf8(sqlite3_errmsg(m_connection.get())));
}

cd_error_t ZobDatabase::get(int key1, int key2, void* record, int* length, int position)
{
    if (position < 0 || *length < 0)
        return spoilChange(reportZob(VKD_ZOB_BAD_CALL, "read", m_path));
    if (position == 0 && !m_isChanging)
        beginPass({key1, key2});
    const int code = stepTo({key1, key2}, position);
    cd_error_t status = VKD_ZOB_OK;
    if (code == SQLITE_ROW)
        status = deliver(record, length);
    else
        status = code == SQLITE_DONE ? positionAfterEnd(key1, key2) : failInside(code, "read");
    if (status > VKD_ZOB_CUT)
        endPass({key1, key2});
    // Outside of a pass nobody ends the reading, which would keep the file locked.
    if (status > VKD_ZOB_CUT || (m_passes.empty() && !m_isChanging))
        stopWalk();
    return status;
}

/// Brings the statement to the record; who asks for one position after the other steps through one
/// run of it.
int ZobDatabase::stepTo(KeyPair pair, int position)
{
    if (pair != m_walkPair || position != m_walkPosition + 1) {
        stopWalk();
        const int code = m_get.start(m_connection.get(), GetSql, pair.first, pair.second);
        if (code != SQLITE_OK)
            return code;
        m_get.bind(3, position);
        m_walkPair = pair;
    }
    m_walkPosition = position;
    return m_get.step();
}

void ZobDatabase::stopWalk()
{
    m_get.done();
    m_walkPosition = NoPosition;
}

cd_error_t ZobDatabase::deliver(void* record, int* length) const
{
    int stored = 0;
    const void* bytes = m_get.columnBytes(0, &stored);
    const cd_error_t status = stored > *length ? VKD_ZOB_CUT : VKD_ZOB_OK;
    *length = std::min(stored, *length);
    if (*length > 0)
        std::memcpy(record, bytes, size_t(*length));
    return status;
}

cd_error_t ZobDatabase::positionAfterEnd(int key1, int key2)
{
    int code = m_any.start(m_connection.get(), AnySql, key1, key2);
    if (code == SQLITE_OK)
        code = m_any.step();
    m_any.done();
    if (code == SQLITE_ROW)
        return VKD_ZOB_END;
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_NO_KEY) : failInside(code, "read");
}

/// The first statement of a transaction for reading takes the shared lock, which lasts to its end.
void ZobDatabase::beginPass(KeyPair pair)
{
    if (m_passes.empty() && execute("BEGIN", "read") != VKD_ZOB_OK)
        return;
    m_passes.insert(pair);
}

void ZobDatabase::endPass(KeyPair pair)
{
    if (m_passes.erase(pair) && m_passes.empty())
        endReading();
}

void ZobDatabase::endPasses()
{
    if (m_passes.empty())
        return;
    m_passes.clear();
    endReading();
}

void ZobDatabase::endReading()
{
    stopWalk();
    if (!sqlite3_get_autocommit(m_connection.get()) &&
        execute("COMMIT", "finish reading") != VKD_ZOB_OK)
        execute("ROLLBACK", "finish reading");
}

/// A failure inside of a taken key pair, even one of reading, may have ended the transaction: what
/// is put from then on would be stored on its own, and what could not be read may be missing from
/// it. So the whole change counts as failed.
cd_error_t ZobDatabase::failInside(int sqliteCode, const char* action)
{
    return spoilChange(fail(sqliteCode, action));
}

cd_error_t ZobDatabase::spoilChange(cd_error_t status)
{
    if (!m_taken.empty() && m_changeStatus == VKD_ZOB_OK)
        m_changeStatus = status;
    return status;
}

cd_error_t ZobDatabase::put(int key1, int key2, const void* record, int length, int position)
{
    if (!m_taken.empty() && m_changeStatus != VKD_ZOB_OK)
        return m_changeStatus;
    if (length < 0 || position < 0 || position > 1)
        return spoilChange(reportZob(VKD_ZOB_BAD_CALL, "write", m_path));
    endPasses(); // there is none while a pair is taken
    stopWalk();
    const KeyPair pair{key1, key2};
    int code = SQLITE_OK;
    if (position == 1)
        code = m_taken.empty() ? append(pair, record, length) : appendInside(pair, record, length);
    else
        code = length == 0 ? clear(pair) : writeFirst(pair, record, length);
    return code == SQLITE_DONE ? cd_error_t(VKD_ZOB_OK) : failInside(code, "write");
}

int ZobDatabase::clear(KeyPair pair)
{
    m_ends.erase(pair);
    int code = m_clear.start(m_connection.get(), ClearSql, pair.first, pair.second);
    return code == SQLITE_OK ? m_clear.run() : code;
}

int ZobDatabase::writeFirst(KeyPair pair, const void* record, int length)
{
    m_ends.erase(pair);
    const int code = m_first.start(m_connection.get(), FirstSql, pair.first, pair.second);
    return code == SQLITE_OK ? m_first.run(record, length) : code;
}

int ZobDatabase::append(KeyPair pair, const void* record, int length)
{
    const int code = m_append.start(m_connection.get(), AppendSql, pair.first, pair.second);
    return code == SQLITE_OK ? m_append.run(record, length) : code;
}

/// Nobody else writes meanwhile, so the end of the sequence is looked up only once.
int ZobDatabase::appendInside(KeyPair pair, const void* record, int length)
{
    auto end = m_ends.find(pair);
    if (end == m_ends.end()) {
        int code = m_end.start(m_connection.get(), EndSql, pair.first, pair.second);
        if (code == SQLITE_OK)
            code = m_end.step();
        const int position = code == SQLITE_ROW ? m_end.column(0) : 0;
        m_end.done();
        if (code != SQLITE_ROW)
            return code;
        end = m_ends.emplace(pair, position).first;
    }
    int code = m_appendAt.start(m_connection.get(), AppendAtSql, pair.first, pair.second);
    if (code == SQLITE_OK)
        code = m_appendAt.bind(4, end->second++);
    return code == SQLITE_OK ? m_appendAt.run(record, length) : code;
}

cd_error_t ZobDatabase::take(int key1, int key2)
{
    endPasses();
    if (m_taken.empty()) {
        m_changeStatus = beginChange();
        m_isChanging = m_changeStatus == VKD_ZOB_OK;
    }
    m_taken.insert({key1, key2}); // a refused pair, too: the change fails until the last release
    return m_changeStatus;
}

cd_error_t ZobDatabase::beginChange()
{
    m_ends.clear();
    // SQLite would begin, and refuse only what is written.
    if (sqlite3_db_readonly(m_connection.get(), "main"))
        return reportZob(VKD_ZOB_READ_ONLY, "take the lock of", m_path);
    return execute("BEGIN IMMEDIATE", "take the lock of");
}

void ZobDatabase::release(int key1, int key2)
{
    endPass({key1, key2});
    if (m_taken.erase({key1, key2}) && m_taken.empty()) {
        if (m_isChanging)
            stopWalk();
        storeOrDrop();
    }
}

void ZobDatabase::storeOrDrop()
{
    cd_error_t status = m_changeStatus; // whose reason has been said
    if (status == VKD_ZOB_OK)
        status = execute("COMMIT", "store the changes in");
    const bool wasChanging = std::exchange(m_isChanging, false);
    if (status == VKD_ZOB_OK) {
        m_endOfChange = VKD_ZOB_OK;
        return;
    }
    // Some failures have rolled back already; what the old content was, it is again.
    if (wasChanging && !sqlite3_get_autocommit(m_connection.get()))
        execute("ROLLBACK", "undo the changes in");
    rememberRelease(status);
}

void ZobDatabase::rememberRelease(cd_error_t status)
{
    m_endOfChange = status;
    if (m_releaseStatus == VKD_ZOB_OK && status != VKD_ZOB_CANCELLED) // which was wanted
        m_releaseStatus = status;
}

void ZobDatabase::firstPairFrom(int* key1, int* key2)
{
    int code = m_next.start(m_connection.get(), NextSql, *key1, *key2);
    if (code == SQLITE_OK)
        code = m_next.step();
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        failInside(code, "search");
    *key1 = code == SQLITE_ROW ? m_next.column(0) : -1;
    *key2 = code == SQLITE_ROW ? m_next.column(1) : -1;
    m_next.done();
}

cd_error_t ZobDatabase::finish()
{
    endPasses();
    stopWalk();
    if (m_isChanging && !sqlite3_get_autocommit(m_connection.get()))
        execute("ROLLBACK", "undo the changes in");
    m_isChanging = false;
    m_taken.clear();
    return m_releaseStatus;
}
