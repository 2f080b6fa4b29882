#include "exchange/rowRecords.h"

#include "record/designRecord.h"

#include <algorithm>
#include <cmath>

namespace plib {

namespace {
constexpr int RecordSize = int(sizeof(RecordBytes));
constexpr char Head[] = "rows 1\n"; // format version
constexpr int HeadSize = int(sizeof Head) - 1;

bool isValid(const tagZOB_QUAD_RIM& record)
{
    const auto& words = namedFields();
    return isDesignRecord(record) && record.type >= NoDesign && record.type <= Circular &&
           std::all_of(words.begin(), words.end(), [&record](const NamedField& word) {
               return word.integer || std::isfinite(record.*word.real);
           });
}
} // namespace

QByteArray bytesOfRows(const DesignRowList& rows)
{
    QByteArray bytes = Head;
    for (const DesignParameterRow& row : rows) {
        const RecordBytes record = toBytes(row.record);
        bytes.append(record.data(), RecordSize);
    }
    return bytes;
}

std::vector<RowPatch> rowsOfBytes(const QByteArray& bytes)
{
    if (!bytes.startsWith(Head) || (bytes.size() - HeadSize) % RecordSize != 0)
        return {};
    std::vector<RowPatch> rows;
    for (int place = HeadSize; place < bytes.size(); place += RecordSize) {
        RecordBytes record;
        std::copy_n(bytes.begin() + place, RecordSize, record.begin());
        const tagZOB_QUAD_RIM read = fromBytes(record);
        if (!isValid(read))
            return {};
        rows.emplace_back(read);
        rows.back().line = int(rows.size());
    }
    return rows;
}

} // namespace plib
