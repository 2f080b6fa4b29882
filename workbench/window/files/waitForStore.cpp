#include "window/files/waitForStore.h"

#include "window/files/SlowWork.h"

#include <vkd_lib_value.h>
#include <vkd_zob_deadline.h>

#include <QDir>
#include <QFileInfo>

namespace workbench {

namespace {
constexpr int AttemptMs = 50; // lets the user cancel quickly

/// Calls `attempt` with a short timeout of the store.
cd_error_t attemptShortly(const std::function<cd_error_t()>& attempt)
{
    const int setting = vkd_lib_getvalue(VKD_SETTING_LOCK_DEADLINE);
    vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, qMin(vkd_zob_deadline(), AttemptMs));
    const cd_error_t status = attempt();
    vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, setting);
    return status;
}
} // namespace

cd_error_t waitForStore(QWidget* parent, const QString& path,
                        const std::function<cd_error_t()>& attempt)
{
    const int deadline = vkd_zob_deadline();
    SlowWork work(parent,
                  SlowWork::tr("Another program is writing to the file %1.")
                      .arg(QDir::toNativeSeparators(QFileInfo(path).fileName())),
                  deadline);
    cd_error_t status = attemptShortly(attempt);
    while (status == VKD_ZOB_LOCKED && work.elapsed() < deadline)
        status = work.goOn(work.elapsed()) ? attemptShortly(attempt) : VKD_ZOB_CANCELLED;
    return status;
}

} // namespace workbench
