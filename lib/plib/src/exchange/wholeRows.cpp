#include "exchange/wholeRows.h"

#include "record/designRecord.h"

#include <QDataStream>
#include <QIODevice>

namespace plib {

QByteArray bytesOfWholeRows(const DesignRowList& rows)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const DesignParameterRow& row : rows) {
        const RecordBytes record = toBytes(row.record);
        stream.writeRawData(record.data(), int(record.size()));
        stream << QVector<qint32>(row.groups.begin(), row.groups.end());
    }
    return bytes;
}

std::optional<DesignRowList> wholeRowsOf(const QByteArray& bytes,
                                         const VKD_A_BarDiameterData* barData)
{
    DesignRowList rows;
    QDataStream stream(bytes);
    while (!stream.atEnd()) {
        RecordBytes record{};
        QVector<qint32> groups;
        if (stream.readRawData(record.data(), int(record.size())) != int(record.size()))
            return std::nullopt;
        stream >> groups;
        if (stream.status() != QDataStream::Ok)
            return std::nullopt;
        rows.push_back({barData, fromBytes(record), {groups.begin(), groups.end()}});
    }
    return rows;
}

} // namespace plib
