#include "exchange/rowColumns.h"

#include "record/designRecord.h"
#include "record/rowText.h"

#include <VKD_H_UnitLabel.h>

#include <QHash>

#include <algorithm>
#include <iterator>

namespace plib {

namespace {
/// A string in both languages, in UTF-8. Both versions are in one place, because a table that was
/// copied in one language can be pasted in the other.
struct Words
{
    const char* german;
    const char* english;

    QString in(vkd::Language language) const
    {
        return QString::fromUtf8(language == vkd::Language::German ? german : english);
    }
};

constexpr vkd::Language Languages[] = {vkd::Language::German, vkd::Language::English};

constexpr Words Types[] = {
    {"Keine Bemessung", DesignTypeNames[0]}, {"Zwei Lagen (orthogonal)", DesignTypeNames[1]},
    {"Zwei Lagen", DesignTypeNames[2]},      {"Drei Lagen", DesignTypeNames[3]},
    {"Ringförmig", DesignTypeNames[4]},
};

constexpr Words NoGroups{"Keine", "None"};
constexpr Words RemainingGroups{"Übrige Gruppen", "Remaining Groups"};

/// The names of the six places, in the order of SixFields.
constexpr Words Places[] = {
    {"oben Hauptbewehrung", "upper principal"}, {"oben Querbewehrung", "upper cross"},
    {"oben dritte Lage", "upper third layer"},  {"unten Hauptbewehrung", "lower principal"},
    {"unten Querbewehrung", "lower cross"},     {"unten dritte Lage", "lower third layer"},
};

/// The symbols are the same as in the dialog: DH and DDH are the distances of a layer from the
/// previous layer.
constexpr Words DistanceNames[] = {
    {"Abstand H", "Distance H"},
    {"Abstand DH", "Distance DH"},
    {"Abstand DDH", "Distance DDH"},
};
constexpr Words MidpointNames[] = {
    {"Mittelpunkt X", "Midpoint X"},
    {"Mittelpunkt Y", "Midpoint Y"},
    {"Mittelpunkt Z", "Midpoint Z"},
};

QString withUnit(const QString& name, RealField field)
{
    const QString unit = VKD_H_UnitLabel::dimString(dimensionCode(field), 0).trimmed();
    return QStringLiteral("%1 [%2]").arg(name, unit);
}

RowColumn valueColumn(RealField field, const Words& name, const Words& place)
{
    RowColumn column{RowColumn::Value, field, {}};
    for (vkd::Language language : Languages)
        column.heads[int(language)] =
            withUnit((name.in(language) + QLatin1Char(' ') + place.in(language)).trimmed(), field);
    return column;
}

void addSix(std::vector<RowColumn>* columns, const SixFields& fields, const Words& name)
{
    for (std::size_t i = 0; i < fields.size(); ++i)
        columns->push_back(valueColumn(fields[i], name, Places[i]));
}

std::vector<RowColumn> makeColumns()
{
    std::vector<RowColumn> columns{
        {RowColumn::Groups, nullptr, {QStringLiteral("Gruppen"), QStringLiteral("Groups")}},
        {RowColumn::Type, nullptr, {QStringLiteral("Art"), QStringLiteral("Type")}}};
    addSix(&columns, fields::Directions, {"Richtung", "Direction"});
    for (std::size_t i = 0; i < fields::Distances.size(); ++i)
        columns.push_back(valueColumn(fields::Distances[i],
                                      DistanceNames[i % std::size(DistanceNames)], Places[i]));
    for (std::size_t i = 0; i < fields::Reference.size(); ++i)
        columns.push_back(valueColumn(fields::Reference[i], MidpointNames[i], {"", ""}));
    addSix(&columns, fields::Diameters, {"Durchmesser", "Diameter"});
    addSix(&columns, fields::Minimum, {"Mindestbewehrung", "Minimum reinforcement"});
    addSix(&columns, fields::Maximum, {"Höchstbewehrung", "Maximum reinforcement"});
    addSix(&columns, fields::CrackWidths, {"Rissbreite", "Crack width"});
    addSix(&columns, fields::Stresses, {"Stahlspannung", "Steel stress"});
    return columns;
}

QString folded(const QString& text)
{
    return text.simplified().toCaseFolded();
}

bool isOneOf(const QString& text, const Words& words)
{
    return std::any_of(std::begin(Languages), std::end(Languages), [&](vkd::Language language) {
        return folded(text) == folded(words.in(language));
    });
}
} // namespace

const std::vector<RowColumn>& rowColumns()
{
    static const std::vector<RowColumn> columns = makeColumns();
    return columns;
}

const RowColumn* columnWithHead(const QString& head)
{
    static const QHash<QString, const RowColumn*> columns = [] {
        QHash<QString, const RowColumn*> byHead;
        for (const RowColumn& column : rowColumns())
            for (const QString& text : column.heads)
                byHead.insert(folded(text), &column);
        return byHead;
    }();
    return columns.value(folded(head));
}

QString headOf(const RowColumn& column, vkd::Language language)
{
    return column.heads[int(language)];
}

QString typeName(int type, vkd::Language language)
{
    return type < 0 || type >= int(std::size(Types)) ? QString() : Types[type].in(language);
}

int typeOfText(const QString& text)
{
    for (int type = 0; type < int(std::size(Types)); ++type)
        if (isOneOf(text, Types[type]) || text.trimmed() == QString::number(type))
            return type;
    return -1;
}

bool isNoGroupsText(const QString& text)
{
    return isOneOf(text, NoGroups);
}

bool isRemainingGroupsText(const QString& text)
{
    return isOneOf(text, RemainingGroups);
}

} // namespace plib
