#include "store/openStores.h"

#include "ZobHandle.h"

#include <algorithm>
#include <vector>

namespace {
constexpr int ScratchIndex = ZobHandle::scratch().index();

/// The open stores by index. The pointer is null if there is no store with this index.
using Stores = std::vector<std::shared_ptr<ZobDatabase>>;

/// The list is never destroyed, because the host's static objects may close documents when the
/// process exits.
Stores& stores()
{
    static Stores& open = *new Stores(ScratchIndex + 1);
    return open;
}

/// Rolls back open changes when the process exits, so that no journal remains next to a project.
/// The object is constructed when this library is loaded. It is therefore destroyed after the
/// static objects of all libraries that link to this library.
const struct ChangesAtEnd
{
    ~ChangesAtEnd()
    {
        for (const auto& store : stores())
            if (store)
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
    const Stores& open = stores();
    if (index == ScratchIndex && !open[ScratchIndex])
        addScratchStore();
    return index >= 0 && size_t(index) < open.size() ? open[size_t(index)].get() : nullptr;
}

VkdStatus reportNotOpen(int index)
{
    return reportZobFailure(VKD_ZOB_NOT_OPEN, ZobAction::Use, QString::number(index));
}

int addStore(std::shared_ptr<ZobDatabase> store)
{
    Stores& open = stores();
    const auto unused = std::find(open.begin() + ScratchIndex + 1, open.end(), nullptr);
    const auto index = int(unused - open.begin());
    if (unused == open.end())
        open.push_back(std::move(store));
    else
        *unused = std::move(store);
    return index;
}

void removeStore(int index)
{
    stores()[size_t(index)].reset();
}
