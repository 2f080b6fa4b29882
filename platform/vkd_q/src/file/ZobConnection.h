#pragma once

#include "file/zobFailure.h"

#include <memory>

struct sqlite3;

/// The connection of a store to its SQLite file or in-memory database. It opens and creates files,
/// executes plain SQL, converts SQLite's codes to failures of the store and remembers the last one.
/// It does not handle records.
class ZobConnection
{
public:
    /// Creates an unconnected object; one of the next four functions connects it. Each failure
    /// writes its log line, unless the caller cancelled.
    explicit ZobConnection(const QString& path);
    VkdStatus open(const VkdGoOn& goOn);
    /// Creates the file, and removes it again if it cannot be completed.
    VkdStatus create();
    VkdStatus openInMemory();
    /// Opens any file for writing, without reading it.
    VkdStatus openUnchecked();

    sqlite3* handle() const { return m_handle.get(); }
    const QString& path() const { return m_path; }
    bool isReadOnly() const;
    /// Returns whether a transaction was begun explicitly and is open.
    bool isInTransaction() const;

    /// Returns whether the path no longer leads to the open file, because it was deleted, moved or
    /// replaced.
    bool isAway() const;
    /// Returns whether a journal exists beside the path.
    bool hasJournal() const;
    /// Sets whether statements wait while another program locks the file, at most as long as
    /// setting 201 says. They do by default.
    void setWaiting(bool waits);

    VkdStatus execute(const char* sql, ZobAction action);
    /// Reads the first column of the first row and reports failures as failures to open the file.
    /// `goOn` is called meanwhile.
    VkdStatus number(const char* sql, int* value, const VkdGoOn& goOn = VkdGoOn());
    /// Converts SQLite's code to a failure, logs it and remembers it.
    VkdStatus fail(int sqliteCode, ZobAction action);
    /// Does the same for a failure to open the file, which may be a failure to read it, or the
    /// caller's wish to cancel.
    VkdStatus failToOpen(int sqliteCode);
    /// Logs the failure and remembers it.
    VkdStatus fail(VkdZobStatus code, ZobAction action, const QString& detail = QString());
    const VkdStatus& lastFailure() const { return m_lastFailure; }

private:
    VkdStatus connect(int flags);
    /// Restricts SQLite, because the file may come from a stranger. Returns SQLite's code.
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
