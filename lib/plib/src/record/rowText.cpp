#include "record/rowText.h"

#include "record/designFields.h"
#include "record/designRecord.h"
#include "record/PageText.h"

#include <VKD_A_BarDiameterData.h>
#include <vkd_dbo_groupTexts.h>
#include <VKD_H_UnitLabel.h>
#include <vkd_h_units.h>

#include <QVarLengthArray>

#include <iterator>

namespace plib {

namespace {
using R = tagZOB_QUAD_RIM;
using FieldList = QVarLengthArray<RealField, 6>;

constexpr int BarCode = 1023;

/// The contents of a column for a design type: the fields of both lines, and whether the text ends
/// with a separator.
struct Summary
{
    FieldList first;
    FieldList second;
    bool closes;
};

Summary distances(int type)
{
    Summary summary{{&R::rio, &R::riu}, {&R::hio, &R::hiu, &R::hioq, &R::hiuq}, true};
    if (type == 2 || type == 3)
        summary.first << &R::rioq << &R::riuq;
    if (type == 3) // intentional: the third layer has distances, but no directions
        summary.second << &R::hioi << &R::hiui;
    return summary;
}

/// Contains only the principal reinforcement, for every type.
Summary reinforcement()
{
    return {{&R::dio, &R::aso, &R::amo}, {&R::diu, &R::asu, &R::amu}, false};
}

/// Type 1 shows crack widths; every other type shows stresses, even if they are not set. All types
/// show the third layer.
Summary crackControl(int type)
{
    const SixFields& all = type == 1 ? fields::CrackWidths : fields::Stresses;
    return {{all[0], all[1], all[2]}, {all[3], all[4], all[5]}, true};
}

Summary summaryOf(int column, int type)
{
    if (column == 2)
        return distances(type);
    return column == 3 ? reinforcement() : crackControl(type);
}

void appendLine(const DesignParameterRow& row, const FieldList& fields, QString* text)
{
    const QLatin1String separator(" ;");
    for (int i = 0; i < fields.size(); ++i) {
        const int code = dimensionCode(fields[i]);
        if (i > 0)
            *text += separator;
        *text += valueText(row, row.record.*fields[i], code, VKD_H_UnitLabel::dimString(code, 0));
    }
}

QString summaryText(const DesignParameterRow& row, int column)
{
    constexpr int LastTypeWithText = 5; // no name, but the same text as type 4
    const int type = row.record.type;
    if (type < 1 || type > LastTypeWithText)
        return QString();
    const Summary summary = summaryOf(column, type);
    constexpr int UsualLength = 80;
    QString text;
    text.reserve(UsualLength);
    appendLine(row, summary.first, &text);
    text += QLatin1Char('\n');
    appendLine(row, summary.second, &text);
    if (summary.closes)
        text += QLatin1String(" ;");
    return text;
}

QString groupsText(const std::vector<int>& groups)
{
    if (groups.empty())
        return PageText::tr(NoGroupsText);
    if (isRemainingGroups(groups))
        return PageText::tr(RemainingGroupsText);
    QStringList texts;
    for (int group : groups)
        texts << vkd::dbo::groupText(group);
    return texts.join(QLatin1Char(';'));
}

QString typeText(int type)
{
    const int index = type % 10;
    if (index < 0 || index >= int(std::size(DesignTypeNames)))
        return QString();
    return PageText::tr(DesignTypeNames[index]);
}
} // namespace

QString withBreaksBetweenValues(const QString& summary)
{
    constexpr ushort WordJoiner = 0x2060;
    constexpr ushort ZeroWidthSpace = 0x200B;
    QString text;
    text.reserve(2 * summary.size());
    for (int i = 0; i < summary.size(); ++i) {
        const QChar character = summary[i];
        const bool isEndOfValue = character == QLatin1Char(';');
        const bool isInValue = character.isPunct() || character == QLatin1Char(' ');
        text += character == QLatin1Char(' ') ? QChar(QChar::Nbsp) : character;
        if (isEndOfValue)
            text += QChar(ZeroWidthSpace);
        else if (isInValue)
            text += QChar(WordJoiner);
    }
    return text;
}

QString valueText(const DesignParameterRow& row, float value, int code, const QString& unit)
{
    if (value == NotSet)
        return QStringLiteral(" - ");
    if (code == BarCode)
        return (row.barData ? *row.barData : VKD_A_BarDiameterData()).getString(value);
    return vkd_h_getDimStringFromVal(double(value), code, -1) + unit;
}

QString rowText(const DesignParameterRow& row, int column)
{
    switch (column) {
    case 0: return groupsText(row.groups);
    case 1: return typeText(row.record.type);
    case 2:
    case 3:
    case 4: return summaryText(row, column);
    default: return QString();
    }
}

} // namespace plib
