#include "record/designEntries.h"

#include "record/designFields.h"
#include "record/designRecord.h"

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_P_DesignParameter_Entry.h>

#include <QStringList>

namespace plib {

namespace {
using R = tagZOB_QUAD_RIM;

/// The order of the diameters in an entry. Unlike the other fields, they alternate between the
/// upper and the lower side.
constexpr SixFields DiametersOfEntry{&R::dio, &R::diu, &R::dioq, &R::diuq, &R::dioi, &R::diui};

constexpr int FieldCount = 7;

QString key(int number)
{
    return QLatin1String(vkd::plib::designparameter::EntryPrefix) + QString::number(number);
}

QString integers(int value)
{
    return QString::number(value, 10) + QLatin1Char(';');
}

template <typename Fields>
QString reals(const R& record, const Fields& fields)
{
    QString text;
    for (RealField field : fields)
        text += QString::number(double(record.*field), 'g', 6) + QLatin1Char(';');
    return text;
}

/// Assigns the values to the fields by position. Missing values are read as 0.
template <typename Fields>
void readReals(R& record, const QStringList& values, const Fields& fields, int first = 0)
{
    for (size_t i = 0; i < fields.size(); ++i)
        record.*fields[i] = values.value(first + int(i)).toFloat();
}
} // namespace

QString entryText(const tagZOB_QUAD_RIM& record)
{
    const QStringList texts{
        integers(record.type),
        reals(record, fields::Directions),
        reals(record, fields::Distances),
        reals(record, fields::Reference),
        reals(record, DiametersOfEntry),
        reals(record, fields::CrackWidths) + reals(record, fields::Stresses),
        integers(record.mark),
    };
    return texts.join(QLatin1String(" | "));
}

void parseEntry(const QString& text, DesignParameterRow& row)
{
    const QStringList parts = text.split(QLatin1Char('|'));
    if (parts.size() < FieldCount)
        return;
    QVector<QStringList> values;
    for (int i = 0; i < FieldCount; ++i)
        values << parts[i].split(QLatin1Char(';'));
    R& record = row.record;
    record.type = values[0].value(0).toInt();
    readReals(record, values[1], fields::Directions);
    readReals(record, values[2], fields::Distances);
    readReals(record, values[3], fields::Reference);
    // Only this field has a short form: a single diameter for the first bar.
    if (values[4].size() >= 6)
        readReals(record, values[4], DiametersOfEntry);
    else
        record.dio = values[4].value(0).toFloat();
    readReals(record, values[5], fields::CrackWidths);
    // Stresses are intentionally written as real numbers, but read as integers. A stress with a
    // fractional part is read as 0.
    for (size_t i = 0; i < fields::Stresses.size(); ++i)
        record.*fields::Stresses[i] = float(values[5].value(6 + int(i)).toInt());
    record.mark = values[6].value(0).toInt();
}

void readRowsFromEntries(DesignParameterData& data, const VKD_H_ProjectDialogPage& page)
{
    for (int n = 1;; ++n) {
        const QString text = page.getEntry(key(n), QString());
        if (text.isEmpty())
            return;
        DesignParameterRow row{data.barData, {}, {}};
        parseEntry(text, row);
        toEditedForm(row.record, data.kindOfSystem);
        data.rows.push_back(row);
    }
}

void writeRowsToEntries(const DesignParameterData& data, VKD_H_ProjectDialogPage& page)
{
    int n = 1;
    for (const DesignParameterRow& row : data.rows)
        if (row.groups.empty())
            page.setEntry(key(n++), entryText(row.record));
    for (; !page.getEntry(key(n), QString()).isEmpty(); ++n)
        page.deleteEntry(key(n));
}

} // namespace plib
