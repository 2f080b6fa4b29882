#include "file/Statement.h"

#include <sqlite3.h>

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

void Statement::prepare(sqlite3* connection, const char* sql)
{
    if (!m_statement)
        m_prepared = sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT,
                                        &m_statement, nullptr);
}

void Statement::start(sqlite3* connection, const char* sql, int first, int second)
{
    prepare(connection, sql);
    bind(1, first);
    bind(2, second);
}

void Statement::bind(int parameter, int value)
{
    sqlite3_bind_int(m_statement, parameter, value);
}

int Statement::step()
{
    return m_statement ? sqlite3_step(m_statement) : m_prepared;
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
    const int bound = length == 0 ? sqlite3_bind_zeroblob(m_statement, 3, 0)
                                  : sqlite3_bind_blob(m_statement, 3, bytes, length, SQLITE_STATIC);
    return m_statement && bound != SQLITE_OK ? bound : run();
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
