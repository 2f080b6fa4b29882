#include "record/designStore.h"

#include "record/designRecord.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>
#include <vkd_zob_keys.h>
#include <ZobHandle.h>

#include <QtEndian>

#include <algorithm>

namespace plib {

namespace {
using vkd::zob::KeyPair;
using vkd::zob::keys::Design;
using vkd::zob::keys::ForeignDesign;

constexpr int RecordLength = sizeof(tagZOB_QUAD_RIM);
constexpr int UndefinedKind = -99999;

/// Reads the records of a key pair one by one into the caller's record. If a stored record is too
/// short, the remaining bytes of the caller's record keep the values that the caller wrote there.
class RecordPass
{
public:
    RecordPass(ZobHandle project, KeyPair keys)
        : m_project(project)
        , m_keys(keys)
    {
    }

    /// Reads the next record. Returns false at the end and also if reading fails; callers do not
    /// distinguish the two.
    bool next(tagZOB_QUAD_RIM& record)
    {
        RecordBytes bytes;
        length = RecordLength;
        const cd_error_t status = vkd_zob_get(m_project.index(), m_keys.key1, m_keys.key2,
                                              bytes.data(), &length, m_position++);
        if (status > VKD_ZOB_CUT)
            return false;
        if (length < RecordLength)
            keepRest(record, bytes);
        convert(bytes, record);
        return true;
    }

    int length = 0;          ///< length of the last record
    bool isRepeated = false; ///< except for its group, the last record has the bytes of the one
                             ///< before it, so only the group was set in the caller's record

private:
    void keepRest(const tagZOB_QUAD_RIM& record, RecordBytes& bytes) const
    {
        const RecordBytes old = toBytes(record);
        std::copy(old.begin() + length, old.end(), bytes.begin() + length);
    }

    void convert(const RecordBytes& bytes, tagZOB_QUAD_RIM& record)
    {
        constexpr size_t First = offsetof(tagZOB_QUAD_RIM, subId);
        static_assert(First == sizeof record.group);
        isRepeated = length == RecordLength && m_position > 1 &&
                     std::equal(bytes.begin() + First, bytes.end(), m_last.begin() + First);
        if (isRepeated) {
            record.group = qFromLittleEndian<qint32>(bytes.data());
        } else {
            record = fromBytes(bytes);
            m_last = bytes;
        }
    }

    ZobHandle m_project;
    KeyPair m_keys;
    int m_position = 0;
    RecordBytes m_last{};
};

void empty(ZobHandle project, KeyPair keys)
{
    const int none = 0;
    vkd_zob_put(project.index(), keys.key1, keys.key2, nullptr, &none, 0);
}

void append(ZobHandle project, KeyPair keys, const tagZOB_QUAD_RIM& record, int length)
{
    const RecordBytes bytes = toBytes(record);
    vkd_zob_put(project.index(), keys.key1, keys.key2, bytes.data(), &length, 1);
}

/// Copies records of other programs that are stored under our key pair to the scratch store.
void saveForeignRecords(ZobHandle project)
{
    empty(ZobHandle::scratch(), ForeignDesign);
    RecordPass pass(project, Design);
    tagZOB_QUAD_RIM record{};
    while (pass.next(record))
        if (!isDesignRecord(record))
            append(ZobHandle::scratch(), ForeignDesign, record, pass.length);
}

void writeRow(ZobHandle project, DesignParameterRow& row)
{
    for (int group : row.groups) {
        row.record.group = group;
        append(project, Design, row.record, RecordLength);
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
    if (vkd_zob_get(index, Design.key1, Design.key2, bytes.data(), &length, 0) == VKD_ZOB_NO_KEY) {
        bytes = toBytes(getDefaultMerPara(true));
        length = RecordLength;
        vkd_zob_put(index, Design.key1, Design.key2, bytes.data(), &length, 0);
    }
    vkd_zob_free_ex(index, Design.key1, Design.key2);
}

void readRowsFromZob(DesignParameterData& data)
{
    const ZobHandle project(data.designDoc->index());
    std::vector<DesignParameterRow> remaining; // inserted before the other rows, in reverse order
    bool hasRow = false;
    bool isInLastRow = false;
    RecordPass pass(project, Design);
    tagZOB_QUAD_RIM record{};
    while (pass.next(record)) {
        if (!isDesignRecord(record))
            continue;
        if (!pass.isRepeated) {
            toEditedForm(record, data.kindOfSystem);
            cleanRecord(record);
        }
        if (record.group < 0) {
            remaining.push_back({data.barData, record, {-1}});
            isInLastRow = false;
            continue;
        }
        // A repeated record may differ from the last row, because NaN is not equal to itself.
        isInLastRow = (pass.isRepeated && isInLastRow) ||
                      (hasRow && recordsEqual(data.rows.back().record, record));
        if (isInLastRow)
            data.rows.back().groups.push_back(record.group);
        else
            data.rows.push_back({data.barData, record, {record.group}});
        hasRow = true;
    }
    data.rows.insert(data.rows.begin(), remaining.rbegin(), remaining.rend());
    vkd_zob_free_ex(project.index(), Design.key1, Design.key2);
}

DesignParameterRow defaultRow(const DesignParameterData& data)
{
    DesignParameterRow row{data.barData, getDefaultMerPara(false), {}};
    if (data.kindOfSystem != UndefinedKind)
        toEditedForm(row.record, data.kindOfSystem);
    return row;
}

DesignParameterRow& addDefaultRow(DesignParameterData& data)
{
    data.rows.push_back(defaultRow(data));
    return data.rows.back();
}

void writeRowsToZob(DesignParameterData& data, bool& converted)
{
    if (!converted)
        for (DesignParameterRow& row : data.rows)
            toStoredForm(row.record, data.kindOfSystem);
    converted = true; // once per page: afterwards, the rows are in the stored form
    const ZobHandle project(data.designDoc->index());
    vkd_zob_lock_ex(project.index(), Design.key1, Design.key2);
    saveForeignRecords(project);
    empty(project, Design);
    for (DesignParameterRow& row : data.rows)
        if (isRemainingGroups(row.groups))
            writeRow(project, row);
    for (DesignParameterRow& row : data.rows)
        if (!isRemainingGroups(row.groups))
            writeRow(project, row);
    // Intentionally reads the first of the copied records without using it, and restores no record.
    tagZOB_QUAD_RIM unused{};
    RecordPass(ZobHandle::scratch(), ForeignDesign).next(unused);
    vkd_zob_free_ex(project.index(), Design.key1, Design.key2);
}

} // namespace plib
