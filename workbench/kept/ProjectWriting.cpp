#include "ProjectWriting.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

namespace {
// A key pair without records; readingStatus() only tests whether it can be read.
constexpr int ChangeKey1 = 421;
constexpr int ChangeKey2 = 0;
} // namespace

ProjectWriting::ProjectWriting(int index)
    : m_change(index)
{
}

cd_error_t ProjectWriting::finish(bool isWhole)
{
    const cd_error_t status = (isWhole ? m_change.commit() : m_change.rollback()).code;
    return status == VKD_ZOB_CANCELLED ? cd_error_t(VKD_ZOB_FAILED) : status; // not by the user
}

bool putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set)
{
    VKD_H_ProjectDialogPage entries(index, page);
    set(entries);
    return entries.save();
}

cd_error_t readingStatus(int index)
{
    int length = 0;
    const cd_error_t status = vkd_zob_get(index, ChangeKey1, ChangeKey2, nullptr, &length, 0);
    vkd_zob_free_ex(index, ChangeKey1, ChangeKey2);
    return status <= VKD_ZOB_NO_KEY ? cd_error_t(VKD_ZOB_OK) : status;
}

} // namespace workbench
