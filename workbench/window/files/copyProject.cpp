#include "window/files/copyProject.h"

#include "window/files/SlowWork.h"
#include "window/files/waitForStore.h"

#include <VKD_H_ZOBDoc.h>
#include <ZobFilePlace.h>
#include <ZobSnapshot.h>

#include <QFileInfo>

namespace workbench {

namespace {
constexpr int Kilobyte = 1024;

/// Returns the status after a failure. Qt reports no error if only part of the data was written.
VkdStatus failureOf(const QFileDevice& file)
{
    switch (file.error()) {
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError: return {VKD_ZOB_READ_ONLY, file.errorString()};
    case QFileDevice::NoError:
    case QFileDevice::ResourceError: return {VKD_ZOB_FULL, file.errorString()};
    default: return {VKD_ZOB_FAILED, file.errorString()};
    }
}

VkdStatus copyBytes(QWidget* parent, const VKD_H_ZOBDoc& document, QFile& to)
{
    const int size = int(QFileInfo(document.path()).size() / Kilobyte); // 0 if the file is missing
    SlowWork work(parent, SlowWork::tr("The project is being saved."), size);
    qint64 done = 0;
    bool isWritten = true;
    const VkdStatus status =
        vkd_zob_copy(document.handle().index(), [&](const void* bytes, int length) {
            isWritten = to.write(static_cast<const char*>(bytes), length) == length;
            done += length;
            return isWritten && work.goOn(int(done / Kilobyte));
        });
    if (!status.isOk() && isWritten)
        return status;
    return isWritten && to.flush() ? VkdStatus() : failureOf(to);
}

/// Calls `attempt` until the store is no longer locked (see waitForStore()).
VkdStatus waitFor(QWidget* parent, const QString& path, const std::function<VkdStatus()>& attempt)
{
    VkdStatus status;
    const cd_error_t code = waitForStore(parent, path, [&] {
        status = attempt();
        return status.code;
    });
    return code == status.code ? status : VkdStatus{code, QString()}; // cancelled
}
} // namespace

VkdStatus takePlace(QWidget* parent, const QString& path, std::unique_ptr<ZobFilePlace>* place)
{
    return waitFor(parent, path, [&path, place] {
        place->reset(); // releases the lock before the next attempt
        *place = std::make_unique<ZobFilePlace>(path);
        return (*place)->status();
    });
}

VkdStatus copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path)
{
    std::unique_ptr<ZobFilePlace> place;
    VkdStatus status = takePlace(parent, path, &place);
    if (status.isOk())
        status = waitFor(parent, document.path(),
                         [&document] { return ZobSnapshot(document.handle()).status(); });
    if (!status.isOk())
        return status;
    QFile to(place->temporaryPath());
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return failureOf(to);
    status = copyBytes(parent, document, to);
    to.close();
    return status.isOk() ? place->commit() : status;
}

} // namespace workbench
