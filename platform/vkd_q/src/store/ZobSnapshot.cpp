#include "ZobSnapshot.h"

#include "store/openStores.h"

ZobSnapshot::ZobSnapshot(ZobHandle project)
{
    ZobDatabase* store = findStore(project.index());
    m_status = store ? store->transactions().beginSnapshot() : reportNotOpen(project.index());
    if (m_status.isOk())
        m_store = store->weak_from_this();
}

ZobSnapshot::~ZobSnapshot()
{
    if (const auto store = m_store.lock())
        store->transactions().endSnapshot();
}
