#include "copyProject.h"

#include "ProjectHold.h"
#include "SlowWork.h"
#include "waitForStore.h"

#include <VKD_H_ZOBDoc.h>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace workbench {

namespace {
const QString JournalSuffix = QStringLiteral("-journal");
constexpr qint64 PieceBytes = 1 << 20;
constexpr int AnyKey1 = 0; // of the lock, which is that of the file
constexpr int AnyKey2 = 0;

bool isWriteProtected(const QFileInfo& file)
{
    const auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !file.isWritable() || !(file.permissions() & anyWrite);
}

cd_error_t statusOf(const QFileDevice& file)
{
    switch (file.error()) {
    case QFileDevice::NoError: return VKD_ZOB_OK;
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
    case QFileDevice::RenameError: return VKD_ZOB_READ_ONLY;
    case QFileDevice::WriteError:
    case QFileDevice::ResourceError: return VKD_ZOB_FULL;
    default: return VKD_ZOB_FAILED;
    }
}

cd_error_t copyBytes(QWidget* parent, QFile& from, QSaveFile& to)
{
    const int pieces = int(from.size() / PieceBytes) + 1;
    SlowWork work(parent, SlowWork::tr("The project is being saved."), pieces);
    for (int piece = 0; !from.atEnd(); ++piece) {
        const QByteArray bytes = from.read(PieceBytes);
        if (bytes.isEmpty())
            return VKD_ZOB_FAILED;
        if (to.write(bytes) != bytes.size()) // a part of it is no error to Qt
            return VKD_ZOB_FULL;
        if (!work.goOn(piece))
            return VKD_ZOB_CANCELLED;
    }
    return VKD_ZOB_OK;
}
} // namespace

ReplacedFile::ReplacedFile(QWidget* parent, const QString& path)
    : m_status(waitForStore(parent, path, [this, path] { return take(path); }))
{
}

ReplacedFile::~ReplacedFile()
{
    if (m_document)
        vkd_zob_free_ex(m_document->index(), AnyKey1, AnyKey2);
}

cd_error_t ReplacedFile::take(const QString& path)
{
    const QFileInfo file(path);
    if (!QFileInfo(file.absolutePath()).isDir() || (file.exists() && !file.isFile()))
        return VKD_ZOB_NO_FILE;
    if (isWriteProtected(QFileInfo(file.absolutePath())))
        return VKD_ZOB_READ_ONLY;
    if (file.isFile() && isWriteProtected(file))
        return VKD_ZOB_READ_ONLY;
    if (!file.exists()) {
        QFile::remove(path + JournalSuffix); // it would be played back into the new file
        return VKD_ZOB_OK;
    }
    VkdStatus opening;
    m_document = VKD_H_ZOBDoc::open(path, &opening); // finishes what was interrupted
    cd_error_t status = opening.code;
    if (m_document)
        status = vkd_zob_lock_ex(m_document->index(), AnyKey1, AnyKey2);
    if (status == VKD_ZOB_LOCKED)
        m_document.reset();
    const bool isUnfinished = QFileInfo::exists(file.canonicalFilePath() + JournalSuffix);
    return isUnfinished || status == VKD_ZOB_LOCKED ? VKD_ZOB_LOCKED : VKD_ZOB_OK;
}

cd_error_t copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path)
{
    const ReplacedFile replaced(parent, path);
    if (replaced.status() != VKD_ZOB_OK)
        return replaced.status();
    std::unique_ptr<ProjectHold> hold;
    cd_error_t status = waitForStore(parent, document.path(), [&hold, &document] {
        hold.reset();
        hold = std::make_unique<ProjectHold>(document.index());
        return hold->status();
    });
    if (status != VKD_ZOB_OK)
        return status;
    QFile from(document.path());
    QSaveFile to(path);
    if (!from.open(QIODevice::ReadOnly))
        return VKD_ZOB_NO_FILE;
    if (!to.open(QIODevice::WriteOnly))
        return statusOf(to);
    status = copyBytes(parent, from, to);
    if (status == VKD_ZOB_OK && !to.commit())
        status = statusOf(to);
    return status;
}

} // namespace workbench
