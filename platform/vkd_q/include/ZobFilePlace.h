#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"

#include <QString>

#include <memory>

class ZobConnection;

/// The place of a project file that is written completely before it appears: as a temporary file
/// beside its path, which commit() renames. An existing file is replaced in one step.
///
/// A file left beside the path, such as the journal of a program that crashed, never changes the
/// new file. While the object exists, other programs cannot change a project at the path. A process
/// may have only one object for a path.
class VKD_Q_EXPORT ZobFilePlace
{
public:
    /// Locks the file at `path`, if there is one, and rolls back an interrupted change of it. Waits
    /// for another program that is changing it, at most as long as setting 201 says. Removes the
    /// temporary files that killed programs of this computer left for the path.
    explicit ZobFilePlace(const QString& path);
    /// Removes the temporary file unless it was committed, and those that killed programs left.
    ~ZobFilePlace();
    ZobFilePlace(const ZobFilePlace&) = delete;
    ZobFilePlace& operator=(const ZobFilePlace&) = delete;

    /// Returns OK, or why no file can be put there: VKD_ZOB_NO_FILE if the folder is missing or the
    /// path does not name a file, VKD_ZOB_READ_ONLY, VKD_ZOB_LOCKED.
    const VkdStatus& status() const { return m_status; }
    /// Returns the path at which the caller creates the file.
    QString temporaryPath() const { return m_temporary; }
    /// Stores the closed temporary file durably and renames it. Returns VKD_ZOB_LOCKED if a file
    /// has appeared at the path since the construction; it is not replaced.
    VkdStatus commit();

private:
    VkdStatus prepare();
    VkdStatus lock();
    void removeLeftFiles() const;
    VkdStatus fail(int code, const QString& detail = QString()) const;

    QString m_name; // as given, for messages
    QString m_path;
    QString m_temporary;
    bool m_replaces = false;
    std::unique_ptr<ZobConnection> m_locked;
    VkdStatus m_status;
};
