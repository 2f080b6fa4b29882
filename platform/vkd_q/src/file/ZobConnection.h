#pragma once

#include "file/zobFailure.h"

#include <memory>

struct sqlite3;

/// The connection of a store to its SQLite file or in-memory database. It opens and creates files,
/// executes plain SQL, converts SQLite result codes to failures of the store and stores the last
/// failure. It does not handle records.
class ZobConnection
{
public:
    /// Creates an unconnected object; one of the next four functions connects it. Each failure is
    /// logged, unless the caller cancelled.
    explicit ZobConnection(const QString& path);
    VkdStatus open(const VkdGoOn& goOn);
    /// Creates the file. Removes it again if initialization fails.
    VkdStatus create();
    VkdStatus openInMemory();
    /// Opens any file for writing, without checking its contents.
    VkdStatus openUnchecked();

    sqlite3* handle() const { return m_handle.get(); }
    const QString& path() const { return m_path; }
    bool isReadOnly() const;
    /// Returns whether a transaction was begun explicitly and is open.
    bool isInTransaction() const;

    /// Returns whether the path no longer refers to the open file, because it was deleted, moved or
    /// replaced.
    bool isAway() const;
    /// Returns whether a journal exists next to the file.
    bool hasJournal() const;
    /// Sets whether statements wait for another program's lock. The default is true. Setting
    /// 201 contains the deadline.
    void setWaiting(bool waits);

    VkdStatus execute(const char* sql, ZobAction action);
    /// Reads the first column of the first row. Failures are reported as failures to open the file.
    /// `goOn` is called while the statement is running.
    VkdStatus number(const char* sql, int* value, const VkdGoOn& goOn = VkdGoOn());
    /// Converts an SQLite result code to a failure, logs it and stores it as the last failure.
    VkdStatus fail(int sqliteCode, ZobAction action);
    /// Does the same as fail() for a failure to open the file. The cause may also be a read failure
    /// or a cancellation by the caller.
    VkdStatus failToOpen(int sqliteCode);
    /// Logs the failure and stores it as the last failure.
    VkdStatus fail(VkdZobStatus code, ZobAction action, const QString& detail = QString());
    const VkdStatus& lastFailure() const { return m_lastFailure; }

private:
    VkdStatus connect(int flags);
    /// Disables SQLite features that a file from an untrusted source could misuse. Returns the
    /// SQLite result code.
    int restrictConnection();
    VkdStatus makeSchema();
    QString failureDetail(int sqliteCode, int systemError) const;

    struct Closer
    {
        void operator()(sqlite3* connection) const;
    };
    QString m_path;
    VkdStatus m_lastFailure;
    std::unique_ptr<sqlite3, Closer> m_handle;
};
