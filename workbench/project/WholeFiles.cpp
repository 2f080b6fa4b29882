#include "project/WholeFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace workbench {

namespace {
bool rename(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool remove(const QString& path)
{
    return unlink(QFile::encodeName(path).constData()) == 0;
}

/// Creates a hard link, or a copy if the file system has no hard links.
bool backUp(const QString& path, const QString& to)
{
    return link(QFile::encodeName(path).constData(), QFile::encodeName(to).constData()) == 0 ||
           QFile::copy(path, to);
}

/// Flushes the contents to the disk, so that errors are detected before any file is replaced.
/// Returns the error message if this fails.
QString writeNew(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) ||
        file.write(contents) != contents.size() || !file.flush())
        return file.errorString();
    const bool isSynced = fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
    return isSynced ? QString() : qt_error_string(errno);
}
} // namespace

WholeFiles::~WholeFiles()
{
    for (const File& file : m_files) {
        remove(file.temporary);
        if (m_reason.isEmpty() || !file.isPut) // otherwise, it is the only old copy
            remove(file.backup());
    }
}

bool WholeFiles::add(const QString& path, const QByteArray& contents)
{
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile()) // a pipe or a device would be replaced
        return fail(path, tr("it is not a file"));
    if (existing.exists() && !existing.isWritable())
        return fail(path, qt_error_string(EACCES));
    const QString target = existing.exists()      ? existing.canonicalFilePath()
                           : existing.isSymLink() ? existing.symLinkTarget()
                                                  : path;
    const QString temporary =
        target + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128).left(8);
    m_files.push_back({path, target, temporary});
    const QString trouble = writeNew(temporary, contents);
    if (!trouble.isEmpty())
        return fail(path, trouble);
    if (existing.exists())
        QFile::setPermissions(temporary, existing.permissions());
    return true;
}

bool WholeFiles::commit()
{
    for (File& file : m_files)
        if (!put(file)) {
            std::for_each(m_files.begin(), m_files.end(), takeBack);
            return false;
        }
    return true;
}

bool WholeFiles::put(File& file)
{
    const QFileInfo existing(file.target);
    file.wasThere = existing.exists();
    if (file.wasThere && !existing.isFile())
        return fail(file.path, tr("it is not a file"));
    if (file.wasThere && !backUp(file.target, file.backup()))
        return fail(file.path, tr("the existing file cannot be backed up"));
    file.isPut = rename(file.temporary, file.target);
    return file.isPut || fail(file.path, qt_error_string(errno));
}

void WholeFiles::takeBack(File& file)
{
    if (file.isPut)
        file.isPut = file.wasThere ? !rename(file.backup(), file.target) : !remove(file.target);
}

QStringList WholeFiles::replaced() const
{
    QStringList paths;
    for (const File& file : m_files)
        if (file.isPut)
            paths << file.path;
    return paths;
}

bool WholeFiles::fail(const QString& path, const QString& reason)
{
    m_failedPath = path;
    m_reason = reason;
    return false;
}

} // namespace workbench
