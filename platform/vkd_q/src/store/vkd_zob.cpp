#include "vkd_zob.h"

#include "ZobDatabase.h"
#include "ZobStatus.h"

#include <map>

namespace {
using Databases = std::map<int, std::unique_ptr<ZobDatabase>>;

/// Never destroyed: documents in static objects of a host may be closed at the very end.
Databases& databases()
{
    static Databases& open = *new Databases;
    return open;
}

/// Drops the changes that nobody stored or dropped, so that no journal stays beside a project.
/// Built when this library is loaded, so that it is destroyed after the static objects of all that
/// link it.
const struct ChangesAtEnd
{
    ~ChangesAtEnd()
    {
        for (const auto& [index, store] : databases())
            if (store)
                store->transactions().finish();
    }
} changesAtEnd;

/// The store under this index; null, with `status` set and a log line, if there is none.
ZobDatabase* database(int index, cd_error_t* status)
{
    *status = VKD_ZOB_OK;
    auto found = databases().find(index);
    if (found == databases().end() && index == 0)
        found = databases().emplace(0, ZobDatabase::inMemory(status)).first;
    if (found != databases().end() && found->second)
        return found->second.get();
    *status = reportZob(VKD_ZOB_NOT_OPEN, "use database", QString::number(index));
    return nullptr;
}

cd_error_t add(std::unique_ptr<ZobDatabase> opened, cd_error_t status, int* index)
{
    if (!opened)
        return status;
    *index = 1;
    while (databases().count(*index))
        ++*index;
    databases()[*index] = std::move(opened);
    return VKD_ZOB_OK;
}
} // namespace

cd_error_t vkd_zob_open(const char* path, int* index, const VkdGoOn& goOn)
{
    cd_error_t status = VKD_ZOB_OK;
    auto opened = ZobDatabase::open(QString::fromUtf8(path), &status, goOn);
    return add(std::move(opened), status, index);
}

cd_error_t vkd_zob_create(const char* path, int* index)
{
    cd_error_t status = VKD_ZOB_OK;
    auto created = ZobDatabase::create(QString::fromUtf8(path), &status);
    return add(std::move(created), status, index);
}

cd_error_t vkd_zob_close(int index)
{
    if (index == 0) // lives as long as the process
        return reportZob(VKD_ZOB_BAD_CALL, "close", QStringLiteral("the scratch store"));
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* closing = database(index, &status);
    if (!closing)
        return status;
    status = closing->transactions().finish();
    databases().erase(index);
    return status;
}

cd_error_t vkd_zob_get(int index, int key1, int key2, void* record, int* length, int position)
{
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* store = database(index, &status);
    return store ? store->get(key1, key2, record, length, position) : status;
}

cd_error_t vkd_zob_put(int index, int key1, int key2, const void* record, const int* length,
                       int position)
{
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* store = database(index, &status);
    return store ? store->put(key1, key2, record, *length, position) : status;
}

cd_error_t vkd_zob_lock_ex(int index, int key1, int key2)
{
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* store = database(index, &status);
    return store ? store->transactions().take({key1, key2}) : status;
}

void vkd_zob_free_ex(int index, int key1, int key2)
{
    cd_error_t status = VKD_ZOB_OK;
    if (ZobDatabase* store = database(index, &status))
        store->transactions().release({key1, key2});
}

void vkd_zob_drop_ex(int index)
{
    cd_error_t status = VKD_ZOB_OK;
    if (ZobDatabase* store = database(index, &status))
        store->transactions().spoilChange(VKD_ZOB_CANCELLED);
}

cd_error_t vkd_zob_change_status(int index)
{
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* store = database(index, &status);
    return store ? store->transactions().endOfChange() : status;
}

void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode)
{
    cd_error_t status = VKD_ZOB_OK;
    ZobDatabase* store = database(index, &status);
    if (store && mode == 1)
        return store->firstPairFrom(key1, key2);
    if (store)
        reportZob(VKD_ZOB_BAD_CALL, "search by mode", QString::number(mode));
    *key1 = -1;
    *key2 = -1;
}
