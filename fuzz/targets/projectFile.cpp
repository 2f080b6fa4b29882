#include "FuzzTarget.h"

#include <vkd_zob.h>

#include <QFile>

#include <climits>

namespace {
/// Reads the whole project.
void readAll(int index)
{
    int key1 = INT_MIN, key2 = INT_MIN;
    for (vkd_zob_kenq_ex(index, &key1, &key2, 1); key1 != -1 || key2 != -1;
         vkd_zob_kenq_ex(index, &key1, &key2, 1)) {
        char record[300];
        cd_error_t status = VKD_ZOB_OK;
        for (int position = 0; status <= VKD_ZOB_CUT; ++position) {
            int length = sizeof record;
            status = vkd_zob_get(index, key1, key2, record, &length, position);
        }
        FUZZ_CHECK(status == VKD_ZOB_END || status == VKD_ZOB_DAMAGED);
        if (key2++ == INT_MAX)
            return;
    }
}

/// Checks that a stored record can be read after the project has been reopened.
void checkStoring(int* index, const QByteArray& path)
{
    const int length = 3;
    char record[3];
    int read = sizeof record;
    const bool isStored = vkd_zob_put(*index, 7, 7, "new", &length, 0) == VKD_ZOB_OK;
    FUZZ_CHECK(isStored || !vkd_zob_last_failure(*index).isOk());
    vkd_zob_close(*index);
    FUZZ_CHECK(vkd_zob_open(path.constData(), index).isOk() || !isStored);
    FUZZ_CHECK(!isStored || vkd_zob_get(*index, 7, 7, record, &read, 0) == VKD_ZOB_OK);
    FUZZ_CHECK(!isStored || QByteArray(record, read) == "new");
    vkd_zob_close(*index);
}
} // namespace

/// Opening and reading a file must not change its bytes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QByteArray input = fuzz::bytesOf(bytes, size);
    const QByteArray path = fuzz::file("project.zob", input).toUtf8();
    int index = -1;
    const VkdStatus opened = vkd_zob_open(path.constData(), &index);
    if (opened.isOk())
        readAll(index);
    else
        fuzz::checkReason(opened.reason);
    QFile file(QString::fromUtf8(path));
    FUZZ_CHECK(file.open(QIODevice::ReadOnly) && file.readAll() == input);
    if (opened.isOk())
        checkStoring(&index, path);
    return 0;
}
