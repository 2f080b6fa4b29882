#include "ModelPass.h"

#include "recordlist.h"

#include <vkd_zob.h>

namespace vkd {
namespace dbo {

ModelPass::ModelPass(int index)
    : m_index(index)
    , m_isHeld(getRecord(index, keys::System, 0, &m_system) == VKD_ZOB_OK)
{
}

ModelPass::~ModelPass()
{
    if (m_isHeld)
        vkd_zob_free_ex(m_index, keys::System.key1, keys::System.key2);
}

} // namespace dbo
} // namespace vkd
