#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// An entry in the list of recently opened projects.
struct RecentProject
{
    QString path;
    QString name;   ///< without folder and suffix
    QString folder; ///< in native form, with "~" for the home folder
    bool isPresent; ///< whether the file exists
};

/// Describes the projects with these paths, in the same order.
QVector<RecentProject> recentProjects(const QStringList& paths);

} // namespace workbench
