#include "store/openStores.h"

#include "ZobHandle.h"

#include <map>

namespace {
constexpr int ScratchIndex = ZobHandle::scratch().index();

using Stores = std::map<int, std::shared_ptr<ZobDatabase>>;

/// The list is never destroyed, because the host's static objects may close documents when the
/// process exits.
Stores& stores()
{
    static Stores& open = *new Stores;
    return open;
}

/// Rolls back open changes when the process exits, so that no journal remains next to a project.
/// The object is constructed when this library is loaded. It is therefore destroyed after the
/// static objects of all libraries that link to this library.
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
