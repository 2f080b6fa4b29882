#include "ProjectWriting.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

namespace {
// Holds nothing: readers and writers inside of a change release pairs of their own.
constexpr int ChangeKey1 = 421;
constexpr int ChangeKey2 = 0;
} // namespace

ProjectWriting::ProjectWriting(int index)
    : m_index(index)
    , m_status(vkd_zob_lock_ex(index, ChangeKey1, ChangeKey2))
{
}

ProjectWriting::~ProjectWriting()
{
    finish(false);
}

cd_error_t ProjectWriting::finish(bool isWhole)
{
    if (!m_isOpen)
        return m_status;
    m_isOpen = false;
    if (!isWhole)
        vkd_zob_drop_ex(m_index);
    vkd_zob_free_ex(m_index, ChangeKey1, ChangeKey2);
    m_status = vkd_zob_change_status(m_index);
    if (m_status == VKD_ZOB_CANCELLED) // by this object, and not by the user
        m_status = VKD_ZOB_FAILED;
    return m_status;
}

cd_error_t storeEntries(int index, int page,
                        const std::function<void(VKD_H_ProjectDialogPage&)>& set)
{
    ProjectWriting writing(index);
    if (writing.status() != VKD_ZOB_OK)
        return writing.status();
    VKD_H_ProjectDialogPage entries(index, page);
    set(entries);
    return writing.finish(entries.save());
}

cd_error_t readingStatus(int index)
{
    int length = 0;
    const cd_error_t status = vkd_zob_get(index, ChangeKey1, ChangeKey2, nullptr, &length, 0);
    vkd_zob_free_ex(index, ChangeKey1, ChangeKey2);
    return status <= VKD_ZOB_NO_KEY ? cd_error_t(VKD_ZOB_OK) : status;
}

} // namespace workbench
