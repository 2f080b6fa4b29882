#include "store/openStores.h"

#include "ZobHandle.h"

#include <map>

namespace {
constexpr int ScratchIndex = ZobHandle::scratch().index();

using Stores = std::map<int, std::shared_ptr<ZobDatabase>>;

/// Never destroyed, because static objects of a host may close documents at the very end.
Stores& stores()
{
    static Stores& open = *new Stores;
    return open;
}

/// Rolls back open changes at the end, so that no journal remains beside a project. Constructed
/// when this library is loaded, so that it is destroyed after the static objects of all libraries
/// that link it.
const struct ChangesAtEnd
{
    ~ChangesAtEnd()
    {
        for (const auto& [index, store] : stores())
            store->transactions().finish();
    }
} changesAtEnd;

/// Creates the scratch store on first use.
void addScratchStore()
{
    auto connection = std::make_unique<ZobConnection>(QString());
    if (connection->openInMemory().isOk())
        stores()[ScratchIndex] = std::make_shared<ZobDatabase>(std::move(connection));
}
} // namespace

ZobDatabase* findStore(int index)
{
    auto found = stores().find(index);
    if (found == stores().end() && index == ScratchIndex) {
        addScratchStore();
        found = stores().find(index);
    }
    return found == stores().end() ? nullptr : found->second.get();
}

ZobDatabase* openStore(int index, VkdStatus* failure)
{
    if (ZobDatabase* store = findStore(index))
        return store;
    *failure = reportZobFailure(VKD_ZOB_NOT_OPEN, ZobAction::Use, QString::number(index));
    return nullptr;
}

int addStore(std::shared_ptr<ZobDatabase> store)
{
    int index = ScratchIndex + 1;
    while (stores().count(index))
        ++index;
    stores()[index] = std::move(store);
    return index;
}

void removeStore(int index)
{
    stores().erase(index);
}
