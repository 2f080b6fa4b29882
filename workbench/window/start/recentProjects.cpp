#include "window/start/recentProjects.h"

#include <QDir>

namespace workbench {

namespace {
QString shortened(const QString& folder)
{
    const QString home = QDir::homePath();
    const bool isInHome = folder == home || folder.startsWith(home + QLatin1Char('/'));
    return QDir::toNativeSeparators(
        isInHome && home != QDir::rootPath() ? QLatin1Char('~') + folder.mid(home.size()) : folder);
}
} // namespace

QVector<RecentProject> recentProjects(const QStringList& paths)
{
    QVector<RecentProject> projects;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        projects.append(
            {path, file.completeBaseName(), shortened(file.absolutePath()), file.isFile()});
    }
    return projects;
}

} // namespace workbench
