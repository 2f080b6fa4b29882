#include "record/commonRecord.h"

#include "record/designRecord.h"
#include "record/rowText.h"

#include <VKD_H_UnitLabel.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace plib {

namespace {
constexpr int MostValues = 5; // in a list

struct ValueText
{
    Q_DECLARE_TR_FUNCTIONS(CommonRecord)
};

int sharedType(int a, int b)
{
    if (a == b)
        return a;
    return a == Circular || b == Circular ? int(TwoLayersOrthogonal) : std::min(a, b);
}

/// Ignores rounding errors, which spacings have because they are differences of distances.
bool isSameValue(float a, float b)
{
    return a == b || qFuzzyCompare(a, b);
}
} // namespace

bool CommonRecord::isMixed(RealField field) const
{
    return std::find(mixed.begin(), mixed.end(), field) != mixed.end();
}

CommonRecord commonRecord(const DesignRowList& rows, const std::set<int>& numbers)
{
    CommonRecord common;
    common.record = rows[std::size_t(*numbers.begin())].record;
    for (int number : numbers)
        common.record.type = sharedType(common.record.type, rows[std::size_t(number)].record.type);
    for (const NamedField& word : namedFields()) {
        const auto differs = [&](int number) {
            return !isSameValue(rows[std::size_t(number)].record.*word.real,
                                common.record.*word.real);
        };
        if (!word.real || std::none_of(numbers.begin(), numbers.end(), differs))
            continue;
        common.mixed.push_back(word.real);
        common.record.*word.real = NotSet;
    }
    return common;
}

QString differentValues(const DesignRowList& rows, const std::set<int>& numbers, RealField field)
{
    const int code = dimensionCode(field);
    const QString unit = VKD_H_UnitLabel::dimString(code, 0);
    QStringList texts;
    for (int number : numbers) {
        const DesignParameterRow& row = rows[std::size_t(number)];
        const bool isSet = row.record.*field != NotSet;
        const QString text =
            isSet ? valueText(row, row.record.*field, code, unit) : ValueText::tr("not set");
        if (texts.contains(text))
            continue;
        if (texts.size() == MostValues) {
            texts << QString(QChar(0x2026));
            break;
        }
        texts << text;
    }
    return texts.join(QLatin1String("; "));
}

} // namespace plib
