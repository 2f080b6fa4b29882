#include "project/ProjectWatch.h"

#include <vkd_zob.h>

#include <QFileInfo>

namespace workbench {

namespace {
constexpr int SlowMs = 3000;
constexpr int SoonMs = 100;
} // namespace

ProjectWatch::ProjectWatch(QObject* parent)
    : QObject(parent)
{
    m_slow.setInterval(SlowMs);
    m_soon.setInterval(SoonMs);
    m_soon.setSingleShot(true);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_soon, QOverload<>::of(&QTimer::start));
    for (const QTimer* timer : {&m_slow, &m_soon})
        connect(timer, &QTimer::timeout, this, &ProjectWatch::look);
}

void ProjectWatch::setProject(ZobHandle project, const QString& path)
{
    if (!m_path.isEmpty())
        m_watcher.removePath(m_path);
    m_project = project;
    m_path = project.isNull() ? QString() : path;
    m_file = File::Present;
    m_changes = 0;
    m_soon.stop();
    if (project.isNull())
        return m_slow.stop();
    watchFile();
    m_slow.start();
    m_soon.start(); // detects changes since the project was opened
}

void ProjectWatch::look()
{
    if (m_project.isNull())
        return;
    watchFile();
    int changes = m_changes;
    const cd_error_t status = vkd_zob_outside_changes(m_project.index(), &changes);
    if (status != VKD_ZOB_OK && status != VKD_ZOB_MOVED)
        return; // another program is writing; the next check tries again
    File file = File::Present;
    if (status == VKD_ZOB_MOVED)
        file = QFileInfo::exists(m_path) ? File::Replaced : File::Missing;
    if (file == m_file && changes == m_changes)
        return;
    m_file = file;
    m_changes = changes;
    Q_EMIT noticed();
}

/// Watches the file again, because the watcher stops watching files that are deleted or replaced.
void ProjectWatch::watchFile()
{
    if (m_watcher.files().isEmpty() && QFileInfo::exists(m_path))
        m_watcher.addPath(m_path);
}

} // namespace workbench
