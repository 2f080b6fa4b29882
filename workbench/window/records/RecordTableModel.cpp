#include "window/records/RecordTableModel.h"

#include "project/projectKeys.h"

#include <vkd_zob.h>

#include <cstring>
#include <unordered_set>

namespace workbench {

namespace {
constexpr int IntegerWords = 5;
constexpr int WordCount = sizeof(tagZOB_QUAD_RIM) / 4;

/// Words that follow each other, with one unit.
struct Words
{
    const char* unit;
    std::vector<const char*> names;
};

const std::vector<Words> RecordWords{
    {"", {"group", "subId", "type", "mode", "mark"}},
    {"rad", {"rio", "rioq", "rioi", "riu", "riuq", "riui"}},
    {"m", {"xref", "yref", "zref"}},
    {"m", {"hio", "hioq", "hioi", "hiu", "hiuq", "hiui"}},
    {"mm", {"dio", "dioq", "dioi", "diu", "diuq", "diui"}},
    {"", {"reservedD"}},
    {"cm²/m", {"aso", "asoq", "asoi", "asu", "asuq", "asui"}},
    {"", {"reservedS"}},
    {"cm²/m", {"amo", "amoq", "amoi", "amu", "amuq", "amui"}},
    {"", {"reservedM"}},
    {"mm", {"wko", "wkoq", "wkoi", "wku", "wkuq", "wkui"}},
    {"N/mm²", {"sigo", "sigoq", "sigoi", "sigu", "siguq", "sigui"}},
};

QStringList namesAndUnits()
{
    QStringList texts;
    for (const Words& words : RecordWords)
        for (const char* name : words.names)
            texts << (*words.unit ? QStringLiteral("%1 [%2]").arg(QLatin1String(name),
                                                                  QString::fromUtf8(words.unit))
                                  : QString::fromLatin1(name));
    return texts;
}
} // namespace

void RecordTableModel::read(int index)
{
    beginResetModel();
    m_records.clear();
    Record record{};
    int length = sizeof record;
    for (int position = 0; index > 0 && vkd_zob_get(index, DesignKey1, DesignKey2, record.data(),
                                                    &length, position) == VKD_ZOB_OK;
         ++position) {
        m_records.push_back(record);
        record = {};
        length = sizeof record;
    }
    if (index > 0)
        vkd_zob_free_ex(index, DesignKey1, DesignKey2);
    endResetModel();
}

/// Records differ in few words, and each different one is written out once.
QString RecordTableModel::longestText() const
{
    std::unordered_set<quint64> seen;
    QString longest;
    for (int record = 0; record < columnCount(); ++record)
        for (int row = 0; row < WordCount; ++row) {
            const bool isInteger = row < IntegerWords;
            const quint32 bits = word(record, row);
            if (!seen.insert(bits | quint64(isInteger) << 32).second)
                continue;
            const QString text = wordText(bits, isInteger);
            if (text.size() > longest.size())
                longest = text;
        }
    return longest;
}

int RecordTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : WordCount;
}

int RecordTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::DisplayRole && index.isValid())
        return wordText(word(index.column(), index.row()), index.row() < IntegerWords);
    return {};
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const QStringList names = namesAndUnits();
    const bool isRecord = orientation == Qt::Horizontal;
    if (role == Qt::TextAlignmentRole)
        return int((isRecord ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role == Qt::DisplayRole)
        return isRecord ? tr("Record %1").arg(section + 1) : names.value(section);
    return {};
}

/// Nine digits tell every single precision number from its neighbours.
QString RecordTableModel::wordText(quint32 word, bool isInteger)
{
    if (isInteger)
        return QString::number(qint32(word));
    float number = 0;
    static_assert(sizeof number == sizeof word);
    std::memcpy(&number, &word, sizeof number);
    return QString::number(double(number), 'g', 9);
}

quint32 RecordTableModel::word(int record, int row) const
{
    quint32 bits = 0;
    std::memcpy(&bits, m_records[size_t(record)].data() + 4 * row, sizeof bits);
    return bits;
}

} // namespace workbench
