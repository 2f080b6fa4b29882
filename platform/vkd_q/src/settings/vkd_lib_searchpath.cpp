#include "vkd_lib_searchpath.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <dlfcn.h>

namespace {
/// Returns the folder of this library, and the folder of the file if the library was found through
/// a symbolic link.
QStringList libraryFolders()
{
    Dl_info info{};
    dladdr(reinterpret_cast<void*>(&vkd_lib_searchpath), &info); // finds every loaded function
    const QFileInfo library(QFile::decodeName(info.dli_fname));
    return {library.absolutePath(), library.canonicalPath()};
}

QStringList shareFolders()
{
    QStringList folders =
        qEnvironmentVariable("VKD_SHARE").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QDir library : libraryFolders())
        folders << QDir::cleanPath(library.filePath(QStringLiteral(VKD_INSTALLED_SHARE)))
                << QDir::cleanPath(library.filePath(QStringLiteral("../share")));
    return folders;
}
} // namespace

std::optional<std::string> vkd_lib_searchpath(const char* name, int mode)
{
    Q_UNUSED(mode)
    const QString file = QFile::decodeName(name);
    if (file.isEmpty())
        return std::nullopt;
    for (const QString& folder : shareFolders()) {
        const QFileInfo candidate(QDir(folder), file);
        if (candidate.isFile())
            return QFile::encodeName(candidate.absoluteFilePath()).toStdString();
    }
    return std::nullopt;
}
