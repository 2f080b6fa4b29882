#include "ZobTransaction.h"

#include "store/openStores.h"

namespace {
VkdStatus projectIsClosed(int index)
{
    return zobFailure(VKD_ZOB_NOT_OPEN, ZobAction::Use, QString::number(index));
}
} // namespace

ZobTransaction::ZobTransaction(int index)
    : m_index(index)
{
    if (ZobDatabase* store = openStore(index, &m_result)) {
        m_store = store->weak_from_this();
        m_isOpen = true;
        store->transactions().begin();
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
    return store ? store->transactions().changeStatus() : projectIsClosed(m_index);
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
    m_result = store ? store->transactions().end(isWhole) : projectIsClosed(m_index);
    return m_result;
}
