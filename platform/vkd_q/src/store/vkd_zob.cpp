#include "vkd_zob.h"

#include "store/openStores.h"

VkdStatus vkd_zob_open(const char* path, int* index, const VkdGoOn& goOn)
{
    auto connection = std::make_unique<ZobConnection>(QString::fromUtf8(path));
    const VkdStatus status = connection->open(goOn);
    if (status.isOk())
        *index = addStore(std::make_shared<ZobDatabase>(std::move(connection)));
    return status;
}

VkdStatus vkd_zob_create(const char* path, int* index)
{
    auto connection = std::make_unique<ZobConnection>(QString::fromUtf8(path));
    const VkdStatus status = connection->create();
    if (status.isOk())
        *index = addStore(std::make_shared<ZobDatabase>(std::move(connection)));
    return status;
}

VkdStatus vkd_zob_close(int index)
{
    if (index == 0) // the scratch store exists as long as the process
        return reportZobFailure(VKD_ZOB_BAD_CALL, ZobAction::Close, QString::number(index));
    ZobDatabase* store = findStore(index);
    if (!store)
        return reportNotOpen(index);
    const VkdStatus status = store->transactions().finish();
    removeStore(index);
    return status;
}

VkdStatus vkd_zob_last_failure(int index)
{
    const ZobDatabase* store = findStore(index);
    return store ? store->lastFailure()
                 : zobFailure(VKD_ZOB_NOT_OPEN, ZobAction::Use, QString::number(index));
}

cd_error_t vkd_zob_get(int index, int key1, int key2, void* record, int* length, int position)
{
    ZobDatabase* store = findStore(index);
    return store ? store->get(key1, key2, record, length, position) : reportNotOpen(index).code;
}

cd_error_t vkd_zob_put(int index, int key1, int key2, const void* record, const int* length,
                       int position)
{
    ZobDatabase* store = findStore(index);
    return store ? store->put(key1, key2, record, *length, position) : reportNotOpen(index).code;
}

cd_error_t vkd_zob_lock_ex(int index, int key1, int key2)
{
    ZobDatabase* store = findStore(index);
    return store ? store->transactions().take({key1, key2}).code : reportNotOpen(index).code;
}

void vkd_zob_free_ex(int index, int key1, int key2)
{
    if (ZobDatabase* store = findStore(index))
        store->transactions().release({key1, key2});
    else
        reportNotOpen(index);
}

VkdStatus vkd_zob_change_status(int index)
{
    ZobDatabase* store = findStore(index);
    return store ? store->transactions().endOfChange() : reportNotOpen(index);
}

cd_error_t vkd_zob_outside_changes(int index, int* number)
{
    ZobDatabase* store = findStore(index);
    return store ? store->outsideChanges().number(number) : reportNotOpen(index).code;
}

VkdStatus vkd_zob_copy(int index, const VkdZobTake& take)
{
    ZobDatabase* store = findStore(index);
    return store ? store->copy(take) : reportNotOpen(index);
}

void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode)
{
    ZobDatabase* store = findStore(index);
    if (store && mode == 1)
        return store->firstPairFrom(key1, key2);
    if (store)
        store->refuseCall(ZobAction::Search);
    else
        reportNotOpen(index);
    *key1 = -1;
    *key2 = -1;
}
