#include "ProjectWriting.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

namespace {
// Any pair would do, for the file has one lock.
constexpr int Key1 = 200;
constexpr int Key2 = 6;
} // namespace

ProjectWriting::ProjectWriting(int index)
    : m_index(index)
    , m_status(vkd_zob_lock_ex(index, Key1, Key2))
{
}

ProjectWriting::~ProjectWriting()
{
    finish();
}

cd_error_t ProjectWriting::finish()
{
    if (!m_isOpen)
        return m_status;
    m_isOpen = false;
    vkd_zob_free_ex(m_index, Key1, Key2);
    m_status = vkd_zob_change_status(m_index);
    return m_status;
}

cd_error_t storeEntries(int index, VKD_H_ProjectDialogPage& entries)
{
    ProjectWriting writing(index);
    if (writing.status() != VKD_ZOB_OK)
        return writing.status();
    const bool isPut = entries.save();
    const cd_error_t status = writing.finish();
    return status == VKD_ZOB_OK && !isPut ? cd_error_t(VKD_ZOB_FAILED) : status;
}

cd_error_t readingStatus(int index)
{
    int length = 0;
    const cd_error_t status = vkd_zob_get(index, Key1, Key2, nullptr, &length, 0);
    vkd_zob_free_ex(index, Key1, Key2);
    return status <= VKD_ZOB_NO_KEY ? cd_error_t(VKD_ZOB_OK) : status;
}

} // namespace workbench
