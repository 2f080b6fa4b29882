#include "ProjectHold.h"

namespace workbench {

/// A first record is read, and nothing after it.
ProjectHold::ProjectHold(int index)
    : m_index(index)
{
    vkd_zob_kenq_ex(m_index, &m_key1, &m_key2, 1);
    int length = 0;
    m_status = vkd_zob_get(m_index, m_key1, m_key2, nullptr, &length, 0);
}

ProjectHold::~ProjectHold()
{
    vkd_zob_free_ex(m_index, m_key1, m_key2);
}

cd_error_t ProjectHold::status() const
{
    const bool isHeld = m_status <= VKD_ZOB_CUT;
    return isHeld ? cd_error_t(VKD_ZOB_OK) : m_status;
}

} // namespace workbench
