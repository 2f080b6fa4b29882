#include "ZobFilePlace.h"

#include "file/ZobConnection.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace {
/// The suffixes of files that SQLite replays into the database file with the same name.
const char* const LeftSuffixes[] = {"-journal", "-wal", "-shm"};

bool isWriteProtected(const QFileInfo& file)
{
    const auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !file.isWritable() || !(file.permissions() & anyWrite);
}

/// Returns the target of a symbolic link, so that the target is replaced and not the link.
QString resolved(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

QString computer()
{
    return QString(QSysInfo::machineHostName()).remove(QLatin1Char('.'));
}

bool isOtherRunning(int process)
{
    return process != getpid() && (kill(process, 0) == 0 || errno != ESRCH);
}

/// Flushes the contents of a file or folder to the disk.
bool sync(const QString& path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool isDone = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        ::close(descriptor);
    return isDone;
}

/// Stops at the first failure, so that errno contains its reason.
bool removeLeftBeside(const QString& path)
{
    for (const char* suffix : LeftSuffixes)
        if (unlink((QFile::encodeName(path) + suffix).constData()) != 0 && errno != ENOENT)
            return false;
    return true;
}

/// Flushes the directory entries. Not all file systems support this, and the folder must be
/// readable.
bool syncFolder(const QString& folder)
{
    return sync(folder, O_DIRECTORY) || errno == EINVAL || errno == ENOTSUP || errno == EACCES;
}

/// Renames a file. If `replaces` is false, an existing file at `to` is an error. QFile::rename() is
/// not used, because it copies the file if it cannot be renamed.
bool renameFile(const QByteArray& from, const QByteArray& to, bool replaces)
{
    if (replaces)
        return std::rename(from.constData(), to.constData()) == 0;
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Not all file systems support this flag.
    return errno == EINVAL && link(from.constData(), to.constData()) == 0 &&
           unlink(from.constData()) == 0;
}
} // namespace

ZobFilePlace::ZobFilePlace(const QString& path)
    : m_name(path)
    , m_path(resolved(path))
    , m_temporary(QStringLiteral("%1.%2-%3.new").arg(m_path, computer(), QString::number(getpid())))
    , m_status(prepare())
{
}

ZobFilePlace::~ZobFilePlace()
{
    if (m_status.isOk())
        removeLeftFiles();
}

VkdStatus ZobFilePlace::prepare()
{
    const QFileInfo file(m_path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir() || (file.exists() && !file.isFile()))
        return fail(VKD_ZOB_NO_FILE, qt_error_string(folder.isDir() ? EISDIR : ENOENT));
    if (isWriteProtected(folder) || (file.exists() && isWriteProtected(file)))
        return fail(VKD_ZOB_READ_ONLY);
    removeLeftFiles();
    m_replaces = file.exists();
    return m_replaces ? lock() : VkdStatus();
}

/// A file that is not a database needs no lock, because no program can have it open as a project.
VkdStatus ZobFilePlace::lock()
{
    m_locked = std::make_unique<ZobConnection>(m_path);
    const VkdStatus connected = m_locked->openUnchecked();
    if (!connected.isOk())
        return connected;
    const int code =
        sqlite3_exec(m_locked->handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) & 0xff;
    if (code == SQLITE_OK && m_locked->isAway()) // another program has just replaced the file
        return m_locked->fail(VKD_ZOB_LOCKED, ZobAction::TakeLock);
    const bool isLocked = code == SQLITE_OK || code == SQLITE_NOTADB || code == SQLITE_CORRUPT;
    return isLocked ? VkdStatus() : m_locked->fail(code, ZobAction::TakeLock);
}

/// Removes the temporary files of this process and of killed processes. A temporary file may itself
/// be the target path of another process; in that case, the ID of the other process is at the end
/// of the name.
void ZobFilePlace::removeLeftFiles() const
{
    const QFileInfo file(m_path);
    const QDir folder = file.absoluteDir();
    const QRegularExpression name(QStringLiteral("\\A%1(?:\\.%2-([0-9]+)\\.new)+(-journal)?\\z")
                                      .arg(QRegularExpression::escape(file.fileName()),
                                           QRegularExpression::escape(computer())));
    const QStringList entries = folder.entryList(QDir::Files);
    for (const QString& entry : entries)
        if (const auto match = name.match(entry);
            match.hasMatch() && !isOtherRunning(match.captured(1).toInt()))
            QFile::remove(folder.filePath(entry));
}

VkdStatus ZobFilePlace::commit()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (m_replaces)
        QFile::setPermissions(m_temporary, QFile::permissions(m_path));
    const bool isPlaced =
        sync(m_temporary, O_RDWR) && removeLeftBeside(m_path) && syncFolder(folder) &&
        renameFile(QFile::encodeName(m_temporary), QFile::encodeName(m_path), m_replaces) &&
        syncFolder(folder);
    if (isPlaced)
        return {};
    const int error = errno;
    return fail(error == EEXIST ? int(VKD_ZOB_LOCKED) : statusOfSystemError(error),
                qt_error_string(error));
}

VkdStatus ZobFilePlace::fail(int code, const QString& detail) const
{
    return reportZobFailure(code, ZobAction::Create, m_name, detail);
}
