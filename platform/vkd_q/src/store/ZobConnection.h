#pragma once

#include "vkd_zob.h"

#include <QString>

#include <memory>

struct sqlite3;

/// The connection of a store to its SQLite file, or to one in memory. It opens and creates files,
/// runs plain SQL and maps SQLite's codes to those of the ZOB; it knows no records.
class ZobConnection
{
public:
    /// Not connected before one of the next three has succeeded. Each gives a status, after its log
    /// line.
    explicit ZobConnection(const QString& path);
    cd_error_t open(const VkdGoOn& goOn);
    /// A file that cannot be completed is removed.
    cd_error_t create();
    cd_error_t openInMemory();

    sqlite3* handle() const { return m_handle.get(); }
    const QString& path() const { return m_path; }
    bool isReadOnly() const;
    /// Whether a transaction is open that was begun by a statement of its own.
    bool isInTransaction() const;

    cd_error_t execute(const char* sql, const char* action);
    /// The first column of the first row, while the file is being opened.
    cd_error_t number(const char* sql, int* value);
    /// The status for a code of SQLite, after its log line.
    cd_error_t fail(int sqliteCode, const char* action) const;

private:
    cd_error_t connect(int flags);
    cd_error_t makeSchema();

    struct Closer
    {
        void operator()(sqlite3* connection) const;
    };
    QString m_path;
    std::unique_ptr<sqlite3, Closer> m_handle;
};
