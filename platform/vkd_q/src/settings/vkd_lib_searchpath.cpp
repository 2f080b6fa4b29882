#include "vkd_lib_searchpath.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <dlfcn.h>

namespace {
QString libraryFolder()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<void*>(&vkd_lib_searchpath), &info) || !info.dli_fname)
        return QString();
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

QStringList shareFolders()
{
    QStringList folders =
        qEnvironmentVariable("VKD_SHARE").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QDir library(libraryFolder());
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
