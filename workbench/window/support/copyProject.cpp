#include "window/support/copyProject.h"

#include "window/support/SlowWork.h"
#include "window/support/waitForStore.h"

#include <VKD_H_ZOBDoc.h>
#include <ZobSnapshot.h>
#include <ZobTransaction.h>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace workbench {

namespace {
const QString JournalSuffix = QStringLiteral("-journal");
constexpr int Kilobyte = 1024;

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

cd_error_t copyBytes(QWidget* parent, const VKD_H_ZOBDoc& document, QSaveFile& to)
{
    const int size = int(QFileInfo(document.path()).size() / Kilobyte); // 0: the file is gone
    SlowWork work(parent, SlowWork::tr("The project is being saved."), size);
    qint64 done = 0;
    bool isWritten = true;
    const VkdStatus status = vkd_zob_copy(document.index(), [&](const void* bytes, int length) {
        isWritten = to.write(static_cast<const char*>(bytes), length) == length;
        done += length;
        return isWritten && work.goOn(int(done / Kilobyte));
    });
    return isWritten ? status.code : VKD_ZOB_FULL; // a part of it is no error to Qt
}
} // namespace

ReplacedFile::ReplacedFile(QWidget* parent, const QString& path)
    : m_status(waitForStore(parent, path, [this, path] { return take(path); }))
{
}

ReplacedFile::~ReplacedFile() = default;

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
    VkdStatus status;
    m_document = VKD_H_ZOBDoc::open(path, &status); // finishes what was interrupted
    if (m_document) {
        m_change = std::make_unique<ZobTransaction>(m_document->index());
        status = m_change->status();
    }
    if (status.code == VKD_ZOB_LOCKED) {
        m_change.reset();
        m_document.reset();
    }
    const bool isUnfinished = QFileInfo::exists(file.canonicalFilePath() + JournalSuffix);
    return isUnfinished || status.code == VKD_ZOB_LOCKED ? VKD_ZOB_LOCKED : VKD_ZOB_OK;
}

cd_error_t copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path)
{
    const ReplacedFile replaced(parent, path);
    if (replaced.status() != VKD_ZOB_OK)
        return replaced.status();
    cd_error_t status = waitForStore(parent, document.path(), [&document] {
        return ZobSnapshot(document.index()).status().code;
    });
    if (status != VKD_ZOB_OK)
        return status;
    QSaveFile to(path);
    if (!to.open(QIODevice::WriteOnly))
        return statusOf(to);
    status = copyBytes(parent, document, to);
    if (status == VKD_ZOB_OK && !to.commit())
        status = statusOf(to);
    return status;
}

} // namespace workbench
