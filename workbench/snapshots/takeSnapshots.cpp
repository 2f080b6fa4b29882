#include "takeSnapshots.h"

#include "designSnapshots.h"
#include "outputSnapshots.h"
#include "SnapshotAlbum.h"
#include "windowSnapshots.h"

#include <VKD_H_ZOBDoc.h>

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace workbench {

QStringList takeSnapshots(const QString& project, const QString& folder)
{
    const QTemporaryDir copies;
    const QString copy = copies.filePath(QStringLiteral("project.zob"));
    if (!QFile::copy(project, copy))
        throw std::runtime_error("cannot read " + project.toStdString());
    const auto document = VKD_H_ZOBDoc::open(copy);
    if (!document)
        throw std::runtime_error(project.toStdString() + " is no project");
    SnapshotAlbum album(folder);
    addWindowSnapshots(album, copy);
    addDesignSnapshots(album, document.get());
    addOutputSnapshots(album, document.get());
    return album.files();
}

} // namespace workbench
