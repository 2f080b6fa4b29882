#include "pickedGroups.h"

#include "VKD_H_SelGRP_Dialog.h"

#include <vkd_zob.h>
#include <vkd_zob_keys.h>
#include <ZobTransaction.h>

#include <QByteArray>
#include <QLoggingCategory>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <functional>

namespace {
Q_LOGGING_CATEGORY(lcPicked, "vkd.grouptable")

using vkd::zob::keys::PickedGroups;
constexpr int WordLength = sizeof(qint32);

QByteArray word(int value)
{
    QByteArray bytes(WordLength, Qt::Uninitialized);
    qToLittleEndian<qint32>(value, bytes.data());
    return bytes;
}

int wordAt(const QByteArray& bytes, int position)
{
    return qFromLittleEndian<qint32>(bytes.constData() + std::ptrdiff_t(position) * WordLength);
}

QByteArray toRecord(const std::vector<int>& groups)
{
    QByteArray bytes = word(int(groups.size()));
    for (int group : groups)
        bytes += word(group);
    return bytes;
}

/// Returns false for bytes that toRecord() cannot have written.
bool fromRecord(const QByteArray& bytes, std::vector<int>& groups)
{
    const int words = bytes.size() / WordLength;
    if (words == 0 || bytes.size() % WordLength != 0 || wordAt(bytes, 0) != words - 1)
        return false;
    std::vector<int> read;
    for (int position = 1; position < words; ++position)
        read.push_back(wordAt(bytes, position));
    const bool ascends =
        std::adjacent_find(read.begin(), read.end(), std::greater_equal<>()) == read.end();
    if (!ascends || (!read.empty() && read.front() < 0))
        return false;
    groups = read;
    return true;
}

/// Returns the record, or a null byte array if there is none.
QByteArray readRecord(ZobHandle project)
{
    QByteArray bytes(1024, Qt::Uninitialized);
    int length = bytes.size();
    cd_error_t status = VKD_ZOB_OK;
    while ((status = vkd_zob_get(project.index(), PickedGroups.key1, PickedGroups.key2,
                                 bytes.data(), &length, 0)) == VKD_ZOB_CUT) {
        bytes.resize(2 * bytes.size());
        length = bytes.size();
    }
    vkd_zob_free_ex(project.index(), PickedGroups.key1, PickedGroups.key2);
    return status == VKD_ZOB_OK ? bytes.left(length) : QByteArray();
}

/// Replaces the stored record, or removes it if `record` is null.
VkdStatus replaceRecord(ZobHandle project, const QByteArray& record)
{
    const int none = 0;
    const int length = record.size();
    ZobTransaction change(project);
    if (change.status().isOk())
        vkd_zob_put(project.index(), PickedGroups.key1, PickedGroups.key2, nullptr, &none, 0);
    if (change.status().isOk() && length > 0)
        vkd_zob_put(project.index(), PickedGroups.key1, PickedGroups.key2, record.constData(),
                    &length, 1);
    return change.commit();
}
} // namespace

bool readPickedGroups(ZobHandle project, std::vector<int>& groups)
{
    const QByteArray record = readRecord(project);
    if (record.isNull())
        return false;
    const bool isSound = fromRecord(record, groups);
    if (!isSound)
        qCWarning(lcPicked, "database %d: the record of picked groups under %d, %d is damaged",
                  project.index(), PickedGroups.key1, PickedGroups.key2);
    return isSound;
}

VkdStatus storePickedGroups(ZobHandle project, const std::vector<int>& groups)
{
    std::vector<int> sorted = groups;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    if (!sorted.empty() && sorted.front() < 0) {
        qCWarning(lcPicked, "database %d: picked groups not stored, %d is no group",
                  project.index(), sorted.front());
        return VkdStatus::failure(
            VKD_ZOB_BAD_CALL,
            VKD_H_SelGRP_Dialog::tr("the picked groups cannot be stored: %1 is not a group")
                .arg(sorted.front()));
    }
    return replaceRecord(project, toRecord(sorted));
}

VkdStatus removePickedGroups(ZobHandle project)
{
    return replaceRecord(project, QByteArray());
}
