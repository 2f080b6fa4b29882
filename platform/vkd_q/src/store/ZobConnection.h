#pragma once

#include "zobFailure.h"

#include <memory>

struct sqlite3;

/// The connection of a store to its SQLite file, or to one in memory. It opens and creates files,
/// runs plain SQL, turns SQLite's codes into failures of the store and remembers the last one; it
/// knows no records.
class ZobConnection
{
public:
    /// Not connected before one of the next three has succeeded. Whatever fails has written its log
    /// line, unless it was cancelled.
    explicit ZobConnection(const QString& path);
    VkdStatus open(const VkdGoOn& goOn);
    /// A file that cannot be completed is removed.
    VkdStatus create();
    VkdStatus openInMemory();

    sqlite3* handle() const { return m_handle.get(); }
    const QString& path() const { return m_path; }
    bool isReadOnly() const;
    /// Whether a transaction is open that was begun by a statement of its own.
    bool isInTransaction() const;

    VkdStatus execute(const char* sql, ZobAction action);
    /// The first column of the first row, while the file is being opened.
    VkdStatus number(const char* sql, int* value);
    /// The failure that SQLite's code stands for.
    VkdStatus fail(int sqliteCode, ZobAction action);
    /// Logs the failure and remembers it.
    VkdStatus fail(VkdZobStatus code, ZobAction action, const QString& detail = QString());
    const VkdStatus& lastFailure() const { return m_lastFailure; }

private:
    VkdStatus connect(int flags);
    VkdStatus makeSchema();

    struct Closer
    {
        void operator()(sqlite3* connection) const;
    };
    QString m_path;
    VkdStatus m_lastFailure;
    std::unique_ptr<sqlite3, Closer> m_handle;
};
