#include "file/OutsideChanges.h"

#include "file/openFile.h"
#include "file/Statement.h"
#include "file/systemErrors.h"
#include "file/ZobConnection.h"
#include "file/zobFailure.h"

#include <QtEndian>

#include <sqlite3.h>

namespace {
constexpr int CounterOffset = 24; // offset of the change counter in the SQLite header
constexpr char DataVersionSql[] = "PRAGMA data_version";
} // namespace

OutsideChanges::OutsideChanges(ZobConnection& connection)
    : m_connection(connection)
{
    m_connection.number(DataVersionSql, &m_firstVersion);
    m_version = m_firstVersion;
}

cd_error_t OutsideChanges::number(int* number)
{
    if (m_connection.isAway())
        return VKD_ZOB_MOVED;
    uchar bytes[4];
    if (!readFile(m_connection.handle(), bytes, sizeof bytes, CounterOffset))
        return VKD_ZOB_FAILED;
    const quint32 counter = qFromBigEndian<quint32>(bytes);
    if (counter != m_counter) {
        if (const cd_error_t status = ask(); status != VKD_ZOB_OK)
            return status;
        m_counter = counter;
    }
    *number = m_version - m_firstVersion;
    return VKD_ZOB_OK;
}

/// A journal exists while a program is storing changes and after a program has crashed while
/// storing them. After a crash, any query would roll back the change and thus write to the file.
cd_error_t OutsideChanges::ask()
{
    if (m_connection.hasJournal())
        return VKD_ZOB_LOCKED;
    sqlite3* handle = m_connection.handle();
    m_connection.setWaiting(false);
    Statement question;
    question.prepare(handle, DataVersionSql);
    const int code = question.step();
    if (code == SQLITE_ROW)
        m_version = question.column(0);
    const cd_error_t status = zobStatus(handle, code, takeSystemError());
    m_connection.setWaiting(true);
    return status;
}
