#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"

#include <QString>

#include <memory>

class ZobConnection;

/// Writes a project file completely before it appears at its path. The caller writes a temporary
/// file in the same folder, and commit() renames it. An existing file is replaced atomically.
///
/// A leftover file, such as the journal of a crashed program, never affects the new file. While the
/// object exists, other programs cannot change a project at the path. A process must not have two
/// objects for the same path at the same time.
class VKD_Q_EXPORT ZobFilePlace
{
public:
    /// Locks the file at `path`, if it exists, and rolls back an interrupted change to it. If
    /// another program is changing the file, waits no longer than the deadline in setting 201.
    /// Removes temporary files for the path that killed programs left behind on this host.
    explicit ZobFilePlace(const QString& path);
    /// Removes the temporary file unless it was committed. Also removes the temporary files that
    /// killed programs left behind.
    ~ZobFilePlace();
    ZobFilePlace(const ZobFilePlace&) = delete;
    ZobFilePlace& operator=(const ZobFilePlace&) = delete;

    /// Returns OK, or the reason why no file can be created at the path: VKD_ZOB_NO_FILE if the
    /// folder is missing or the path does not denote a file, VKD_ZOB_READ_ONLY or VKD_ZOB_LOCKED.
    const VkdStatus& status() const { return m_status; }
    /// Returns the path at which the caller creates the file.
    QString temporaryPath() const { return m_temporary; }
    /// Flushes the closed temporary file to the disk and renames it. Returns VKD_ZOB_LOCKED if a
    /// file has appeared at the path since construction; that file is not replaced.
    VkdStatus commit();

private:
    VkdStatus prepare();
    VkdStatus lock();
    void removeLeftFiles() const;
    VkdStatus fail(int code, const QString& detail = QString()) const;

    QString m_name; // the path as given, for messages
    QString m_path;
    QString m_temporary;
    bool m_replaces = false;
    std::unique_ptr<ZobConnection> m_locked;
    VkdStatus m_status;
};
