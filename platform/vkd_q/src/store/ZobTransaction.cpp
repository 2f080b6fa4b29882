#include "ZobTransaction.h"

#include "store/openStores.h"

namespace {
VkdStatus projectIsClosed(ZobHandle project)
{
    return zobFailure(VKD_ZOB_NOT_OPEN, ZobAction::Use, QString::number(project.index()));
}
} // namespace

ZobTransaction::ZobTransaction(ZobHandle project)
    : m_project(project)
{
    if (ZobDatabase* store = findStore(project.index())) {
        m_store = store->weak_from_this();
        m_isOpen = true;
        store->transactions().begin();
    } else {
        m_result = reportNotOpen(project.index());
    }
}

ZobTransaction::~ZobTransaction()
{
    rollback();
}

VkdStatus ZobTransaction::status() const
{
    if (!m_isOpen)
        return m_result;
    const auto store = m_store.lock();
    return store ? store->transactions().changeStatus() : projectIsClosed(m_project);
}

VkdStatus ZobTransaction::commit()
{
    return end(true);
}

VkdStatus ZobTransaction::rollback()
{
    return end(false);
}

VkdStatus ZobTransaction::end(bool isWhole)
{
    if (!m_isOpen)
        return m_result;
    m_isOpen = false;
    const auto store = m_store.lock();
    m_result = store ? store->transactions().end(isWhole) : projectIsClosed(m_project);
    return m_result;
}
