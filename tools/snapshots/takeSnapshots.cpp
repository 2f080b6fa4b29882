#include "takeSnapshots.h"

#include "designSnapshots.h"
#include "looks.h"
#include "outputSnapshots.h"
#include "window/files/copyProject.h"
#include "windowSnapshots.h"

#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>

#include <QApplication>
#include <QPalette>
#include <QTemporaryDir>

#include <stdexcept>

namespace workbench {

namespace {
constexpr QSize ModelSize(180, 120); // as on the start page

std::unique_ptr<VKD_H_ZOBDoc> opened(const QString& project)
{
    auto document = VKD_H_ZOBDoc::open(project);
    if (!document)
        throw std::runtime_error(project.toStdString() + " is not a project");
    return document;
}

/// Adds screenshots of the model and of the pages. The pages edit a copy of the project.
void addPages(SnapshotAlbum& album, const QString& copy)
{
    const auto document = opened(copy);
    AnimatorView model(document->handle());
    model.resize(ModelSize);
    album.add(QStringLiteral("model"), &model);
    addDesignSnapshots(album, document.get());
    addOutputSnapshots(album, document.get());
}
} // namespace

SnapshotAlbum takeSnapshots(const QString& project, const QString& folder)
{
    const QTemporaryDir copies;
    const auto original = opened(project);
    const auto copyOf = [&](const char* name) {
        const QString copy = copies.filePath(QLatin1String(name));
        const VkdStatus status = copyProject(nullptr, *original, copy);
        if (!status.isOk())
            throw std::runtime_error("cannot copy " + project.toStdString() + ": " +
                                     status.reason.toStdString());
        return copy;
    };
    SnapshotAlbum album(folder);
    addWindowSnapshots(album, copyOf("project.zob"));
    addPages(album, copyOf("light.zob"));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(darkPalette());
    album.setLook(QStringLiteral("-dark"));
    addPages(album, copyOf("dark.zob"));
    QApplication::setPalette(light);
    return album;
}

} // namespace workbench
