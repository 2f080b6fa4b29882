#include "record/designStore.h"

#include "record/designRecord.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

namespace plib {

namespace {
constexpr int Key1 = 200;
constexpr int Key2 = 6;
constexpr int ScratchIndex = 0;
constexpr int ScratchKey1 = 0;
constexpr int ScratchKey2 = 12979;
constexpr int RecordLength = sizeof(tagZOB_QUAD_RIM);
constexpr int UndefinedKind = -99999;

/// Reads the records of a key pair one by one into the caller's record. If a stored record is
/// short, the bytes beyond its length keep their old content, including changes by the caller.
class RecordPass
{
public:
    RecordPass(int index, int key1, int key2)
        : m_index(index)
        , m_key1(key1)
        , m_key2(key2)
    {
    }

    /// Reads the next record. Returns false at the end and also if reading fails; callers do not
    /// distinguish the two.
    bool next(tagZOB_QUAD_RIM& record)
    {
        RecordBytes bytes = toBytes(record);
        length = RecordLength;
        const cd_error_t status =
            vkd_zob_get(m_index, m_key1, m_key2, bytes.data(), &length, m_position++);
        if (status > VKD_ZOB_CUT)
            return false;
        record = fromBytes(bytes);
        return true;
    }

    int length = 0; ///< of the last record

private:
    int m_index;
    int m_key1;
    int m_key2;
    int m_position = 0;
};

void empty(int index, int key1, int key2)
{
    const int none = 0;
    vkd_zob_put(index, key1, key2, nullptr, &none, 0);
}

void append(int index, int key1, int key2, const tagZOB_QUAD_RIM& record, int length)
{
    const RecordBytes bytes = toBytes(record);
    vkd_zob_put(index, key1, key2, bytes.data(), &length, 1);
}

/// Copies the records of other programs under our key pair to the scratch store.
void saveForeignRecords(int index)
{
    empty(ScratchIndex, ScratchKey1, ScratchKey2);
    RecordPass pass(index, Key1, Key2);
    tagZOB_QUAD_RIM record{};
    while (pass.next(record))
        if (!isDesignRecord(record))
            append(ScratchIndex, ScratchKey1, ScratchKey2, record, pass.length);
}

void writeRow(int index, DesignParameterRow& row)
{
    for (int group : row.groups) {
        row.record.group = group;
        append(index, Key1, Key2, row.record, RecordLength);
    }
}
} // namespace

bool isRemainingGroups(const std::vector<int>& groups)
{
    return groups.size() == 1 && groups.front() == -1;
}

void checkAndCreateZobDefault(int index)
{
    RecordBytes bytes{};
    int length = RecordLength;
    if (vkd_zob_get(index, Key1, Key2, bytes.data(), &length, 0) == VKD_ZOB_NO_KEY) {
        bytes = toBytes(getDefaultMerPara(true));
        length = RecordLength;
        vkd_zob_put(index, Key1, Key2, bytes.data(), &length, 0);
    }
    vkd_zob_free_ex(index, Key1, Key2);
}

void readRowsFromZob(DesignParameterData& data)
{
    const int index = data.designDoc->index();
    std::vector<DesignParameterRow> remaining; // inserted at the front, in reverse order
    tagZOB_QUAD_RIM previous{};
    bool hasPrevious = false;
    RecordPass pass(index, Key1, Key2);
    tagZOB_QUAD_RIM record{};
    while (pass.next(record)) {
        if (!isDesignRecord(record))
            continue;
        toEditedForm(record, data.kindOfSystem);
        cleanRecord(record);
        if (record.group < 0) {
            remaining.push_back({data.barData, record, {-1}});
        } else if (hasPrevious && recordsEqual(previous, record)) {
            data.rows.back().groups.push_back(record.group);
        } else {
            data.rows.push_back({data.barData, record, {record.group}});
            previous = record;
            hasPrevious = true;
        }
    }
    data.rows.insert(data.rows.begin(), remaining.rbegin(), remaining.rend());
    vkd_zob_free_ex(index, Key1, Key2);
}

DesignParameterRow& addDefaultRow(DesignParameterData& data)
{
    data.rows.push_back({data.barData, getDefaultMerPara(false), {}});
    if (data.kindOfSystem != UndefinedKind)
        toEditedForm(data.rows.back().record, data.kindOfSystem);
    return data.rows.back();
}

void writeRowsToZob(DesignParameterData& data, bool& converted)
{
    if (!converted)
        for (DesignParameterRow& row : data.rows)
            toStoredForm(row.record, data.kindOfSystem);
    converted = true; // only once for each page: a second write finds the stored form
    const int index = data.designDoc->index();
    vkd_zob_lock_ex(index, Key1, Key2);
    saveForeignRecords(index);
    empty(index, Key1, Key2);
    for (DesignParameterRow& row : data.rows)
        if (isRemainingGroups(row.groups))
            writeRow(index, row);
    for (DesignParameterRow& row : data.rows)
        if (!isRemainingGroups(row.groups))
            writeRow(index, row);
    // The first of the copied records is read but not used; none of them is restored. This is
    // meant.
    tagZOB_QUAD_RIM unused{};
    RecordPass(ScratchIndex, ScratchKey1, ScratchKey2).next(unused);
    vkd_zob_free_ex(index, Key1, Key2);
}

} // namespace plib
