#include "file/Statement.h"

#include <sqlite3.h>

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

int Statement::prepare(sqlite3* connection, const char* sql)
{
    if (m_statement)
        return SQLITE_OK;
    return sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_statement,
                              nullptr);
}

int Statement::start(sqlite3* connection, const char* sql, int first, int second)
{
    const int code = prepare(connection, sql);
    if (code != SQLITE_OK)
        return code;
    bind(1, first);
    return bind(2, second);
}

int Statement::bind(int parameter, int value)
{
    return sqlite3_bind_int(m_statement, parameter, value);
}

int Statement::step()
{
    return sqlite3_step(m_statement);
}

int Statement::run()
{
    const int code = step();
    done();
    return code;
}

int Statement::run(const void* bytes, int length)
{
    // A null pointer would store NULL instead of an empty record.
    const int code = length == 0 ? sqlite3_bind_zeroblob(m_statement, 3, 0)
                                 : sqlite3_bind_blob(m_statement, 3, bytes, length, SQLITE_STATIC);
    return code == SQLITE_OK ? run() : code;
}

int Statement::column(int index) const
{
    return sqlite3_column_int(m_statement, index);
}

const void* Statement::columnBytes(int index, int* length) const
{
    const void* bytes = sqlite3_column_blob(m_statement, index);
    *length = sqlite3_column_bytes(m_statement, index);
    return bytes;
}

void Statement::done()
{
    sqlite3_reset(m_statement);
}
