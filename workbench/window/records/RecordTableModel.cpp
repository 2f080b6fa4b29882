#include "window/records/RecordTableModel.h"

#include <tagZOB_QUAD_RIM_Words.h>
#include <vkd_dbo_packedNames.h>
#include <vkd_h_units.h>
#include <vkd_zob.h>
#include <vkd_zob_keys.h>

#include <cstring>
#include <iterator>
#include <unordered_set>

namespace workbench {

namespace {
using vkd::plib::designparameter::RecordWord;
using vkd::plib::designparameter::RecordWords;
using vkd::zob::keys::Design;

constexpr int NotSet = -99999;
constexpr int WordCount = std::size(RecordWords);

bool isInteger(int row)
{
    return RecordWords[row].integer;
}

QStringList namesAndUnits()
{
    QStringList texts;
    for (const RecordWord& word : RecordWords) {
        const QString unit = QString::fromUtf8(vkd_h_dimension(word.dimension).baseUnit);
        const QString name = QString::fromLatin1(word.name);
        texts << (unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, unit));
    }
    return texts;
}
} // namespace

bool RecordTableModel::read(ZobHandle project)
{
    beginResetModel();
    m_records.clear();
    cd_error_t status = project.isNull() ? VKD_ZOB_NO_KEY : VKD_ZOB_OK;
    for (int position = 0; status <= VKD_ZOB_CUT; ++position) {
        Record record{};
        int length = sizeof record;
        status = vkd_zob_get(project.index(), Design.key1, Design.key2, record.data(), &length,
                             position);
        if (status <= VKD_ZOB_CUT)
            m_records.push_back(record);
    }
    if (!project.isNull())
        vkd_zob_free_ex(project.index(), Design.key1, Design.key2);
    endResetModel();
    return status == VKD_ZOB_END || status == VKD_ZOB_NO_KEY;
}

/// Caches the strings, because records differ in few fields and most strings are equal.
QString RecordTableModel::longestText() const
{
    std::unordered_set<quint64> seen;
    QString longest;
    for (int record = 0; record < columnCount(); ++record)
        for (int row = 0; row < WordCount; ++row) {
            const quint32 bits = word(record, row);
            if (!seen.insert(bits | quint64(isInteger(row)) << 32).second)
                continue;
            const QString text = wordText(bits, row);
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
        return wordText(word(index.column(), index.row()), index.row());
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

/// Nine significant digits distinguish all single-precision numbers. A value that is not set is
/// shown as an empty cell, and a secondary group by its name.
QString RecordTableModel::wordText(quint32 word, int row)
{
    if (isInteger(row)) {
        const auto number = qint32(word);
        if (number == NotSet)
            return QString();
        return vkd::dbo::isSecondaryGroup(number) ? vkd::dbo::unpackedName(number).trimmed()
                                                  : QString::number(number);
    }
    float number = 0;
    static_assert(sizeof number == sizeof word);
    std::memcpy(&number, &word, sizeof number);
    return number == float(NotSet) ? QString() : QString::number(double(number), 'g', 9);
}

quint32 RecordTableModel::word(int record, int row) const
{
    quint32 bits = 0;
    std::memcpy(&bits, m_records[size_t(record)].data() + sizeof bits * size_t(row), sizeof bits);
    return bits;
}

} // namespace workbench
