#include "window/support/copyProject.h"

#include "window/support/SlowWork.h"
#include "window/support/waitForStore.h"

#include <VKD_H_ZOBDoc.h>
#include <ZobFilePlace.h>
#include <ZobSnapshot.h>

#include <QFileInfo>

namespace workbench {

namespace {
constexpr int Kilobyte = 1024;

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

cd_error_t copyBytes(QWidget* parent, const VKD_H_ZOBDoc& document, QFile& to)
{
    const int size = int(QFileInfo(document.path()).size() / Kilobyte); // 0 if the file is missing
    SlowWork work(parent, SlowWork::tr("The project is being saved."), size);
    qint64 done = 0;
    bool isWritten = true;
    const VkdStatus status = vkd_zob_copy(document.index(), [&](const void* bytes, int length) {
        isWritten = to.write(static_cast<const char*>(bytes), length) == length;
        done += length;
        return isWritten && work.goOn(int(done / Kilobyte));
    });
    return isWritten ? status.code : VKD_ZOB_FULL; // Qt reports no error for a partial write
}
} // namespace

cd_error_t takePlace(QWidget* parent, const QString& path, std::unique_ptr<ZobFilePlace>* place)
{
    return waitForStore(parent, path, [&path, place] {
        place->reset(); // releases the lock before the next attempt
        *place = std::make_unique<ZobFilePlace>(path);
        return (*place)->status().code;
    });
}

cd_error_t copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path)
{
    std::unique_ptr<ZobFilePlace> place;
    cd_error_t status = takePlace(parent, path, &place);
    if (status != VKD_ZOB_OK)
        return status;
    status = waitForStore(parent, document.path(),
                          [&document] { return ZobSnapshot(document.handle()).status().code; });
    if (status != VKD_ZOB_OK)
        return status;
    QFile to(place->temporaryPath());
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return statusOf(to);
    status = copyBytes(parent, document, to);
    to.close();
    if (status == VKD_ZOB_OK)
        status = to.error() == QFileDevice::NoError ? place->commit().code : statusOf(to);
    return status;
}

} // namespace workbench
