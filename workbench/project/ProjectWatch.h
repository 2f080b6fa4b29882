#pragma once

#include <ZobHandle.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace workbench {

/// Watches an open project for changes by other programs, and detects when its file is deleted,
/// moved or replaced. The operating system reports changes to the file. On drives that do not
/// report changes, a slow timer checks the file. A check is cheap and does not make other programs
/// wait.
class ProjectWatch : public QObject
{
    Q_OBJECT

public:
    enum class File {
        Present,  ///< exists at its path
        Missing,  ///< deleted or moved
        Replaced, ///< another file is at its path
    };

    explicit ProjectWatch(QObject* parent = nullptr);

    /// Watches the project, or no project if the handle is null. Changes made since the project was
    /// opened are reported, too.
    void setProject(ZobHandle project, const QString& path);

    File file() const { return m_file; }
    /// Returns 0 if no other program has changed the project, and a different number after each
    /// change.
    int changes() const { return m_changes; }

    /// Checks the project immediately.
    void look();

Q_SIGNALS:
    /// Emitted when file() or changes() has changed.
    void noticed();

private:
    void watchFile();

    QFileSystemWatcher m_watcher;
    QTimer m_slow;
    QTimer m_soon; // combines multiple notifications of the same change
    QString m_path;
    ZobHandle m_project;
    File m_file = File::Present;
    int m_changes = 0;
};

} // namespace workbench
