#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace workbench {

/// Watches an open project for changes by other programs and for its file being deleted, moved or
/// replaced. The system reports changes of the file; a slow timer covers drives where it does not.
/// A check is cheap and does not make other programs wait.
class ProjectWatch : public QObject
{
    Q_OBJECT

public:
    enum class File {
        Present,  ///< under its path
        Missing,  ///< deleted or moved
        Replaced, ///< another file lies there
    };

    explicit ProjectWatch(QObject* parent = nullptr);

    /// Watches the project at this database index, or none if it is below 1. Changes count from the
    /// time when the project was opened.
    void setProject(int index, const QString& path);

    File file() const { return m_file; }
    /// Returns 0 if no other program has changed the project, and another number after each change.
    int changes() const { return m_changes; }

    /// Checks at once.
    void look();

Q_SIGNALS:
    /// Emitted when file() or changes() has changed.
    void noticed();

private:
    void watchFile();

    QFileSystemWatcher m_watcher;
    QTimer m_slow;
    QTimer m_soon; // the system reports one change many times
    QString m_path;
    int m_index = 0;
    File m_file = File::Present;
    int m_changes = 0;
};

} // namespace workbench
