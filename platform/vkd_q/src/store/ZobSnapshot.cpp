#include "ZobSnapshot.h"

#include "store/openStores.h"

ZobSnapshot::ZobSnapshot(ZobHandle project)
{
    ZobDatabase* store = openStore(project.index(), &m_status);
    if (!store)
        return;
    m_status = store->transactions().beginSnapshot();
    if (m_status.isOk())
        m_store = store->weak_from_this();
}

ZobSnapshot::~ZobSnapshot()
{
    if (const auto store = m_store.lock())
        store->transactions().endSnapshot();
}
