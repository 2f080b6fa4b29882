#include "exchange/rowColumns.h"

#include "record/designRecord.h"
#include "record/rowText.h"

#include <VKD_H_UnitLabel.h>

#include <QHash>
#include <QTranslator>

#include <algorithm>
#include <iterator>

namespace plib {

namespace {
/// A string in both languages, in UTF-8. Both versions are in one place, because a table that was
/// copied in one language can be pasted in the other.
struct BothLanguages
{
    const char* german;
    const char* english;

    QString in(vkd::Language language) const
    {
        return QString::fromUtf8(language == vkd::Language::German ? german : english);
    }
};

constexpr vkd::Language Languages[] = {vkd::Language::German, vkd::Language::English};

constexpr BothLanguages Sides[] = {{"oben", "upper"}, {"unten", "lower"}};
constexpr BothLanguages Layers[] = {
    {"Hauptbewehrung", "principal"}, {"Querbewehrung", "cross"}, {"dritte Lage", "third layer"}};

/// The symbols are the same as in the dialog: DH and DDH are the distances of a layer from the
/// previous layer.
constexpr BothLanguages DistanceNames[] = {
    {"Abstand H", "Distance H"},
    {"Abstand DH", "Distance DH"},
    {"Abstand DDH", "Distance DDH"},
};
constexpr BothLanguages MidpointNames[] = {
    {"Mittelpunkt X", "Midpoint X"},
    {"Mittelpunkt Y", "Midpoint Y"},
    {"Mittelpunkt Z", "Midpoint Z"},
};

QString withUnit(const QString& name, RealField field)
{
    const QString unit = VKD_H_UnitLabel::dimString(dimensionCode(field), 0).trimmed();
    return QStringLiteral("%1 [%2]").arg(name, unit);
}

RowColumn valueColumn(RealField field, const BothLanguages& name, std::size_t side,
                      const BothLanguages& layer)
{
    RowColumn column{RowColumn::Value, field, {}, {}, int(side)};
    for (vkd::Language language : Languages) {
        const QString place = Sides[side].in(language) + QLatin1Char(' ') + layer.in(language);
        const QString start = name.in(language) + QLatin1Char(' ');
        column.headers[int(language)] = withUnit(start + place, field);
        column.names[int(language)] = start + layer.in(language);
    }
    return column;
}

RowColumn midpointColumn(RealField field, const BothLanguages& name)
{
    RowColumn column{RowColumn::Value, field, {}, {}, 0};
    for (vkd::Language language : Languages) {
        column.headers[int(language)] = withUnit(name.in(language), field);
        column.names[int(language)] = name.in(language);
    }
    return column;
}

/// Adds the columns of one kind. The fields of the upper side precede those of the lower side.
template <typename NameOfLayer>
void addSix(std::vector<RowColumn>* columns, const SixFields& fields, const NameOfLayer& name)
{
    constexpr std::size_t LayerCount = std::size(Layers);
    for (std::size_t i = 0; i < fields.size(); ++i)
        columns->push_back(
            valueColumn(fields[i], name(i % LayerCount), i / LayerCount, Layers[i % LayerCount]));
}

void addSix(std::vector<RowColumn>* columns, const SixFields& fields, const BothLanguages& name)
{
    addSix(columns, fields, [&name](std::size_t) { return name; });
}

std::vector<RowColumn> makeColumns()
{
    std::vector<RowColumn> columns{
        {RowColumn::Groups, nullptr, {QStringLiteral("Gruppen"), QStringLiteral("Groups")}, {}, 0},
        {RowColumn::Type, nullptr, {QStringLiteral("Art"), QStringLiteral("Type")}, {}, 0}};
    addSix(&columns, fields::Directions, {"Richtung", "Direction"});
    addSix(&columns, fields::Distances, [](std::size_t layer) { return DistanceNames[layer]; });
    for (std::size_t i = 0; i < fields::Reference.size(); ++i)
        columns.push_back(midpointColumn(fields::Reference[i], MidpointNames[i]));
    addSix(&columns, fields::Diameters, {"Durchmesser", "Diameter"});
    addSix(&columns, fields::Minimum, {"Mindestbewehrung", "Minimum reinforcement"});
    addSix(&columns, fields::Maximum, {"Höchstbewehrung", "Maximum reinforcement"});
    addSix(&columns, fields::CrackWidths, {"Rissbreite", "Crack width"});
    addSix(&columns, fields::Stresses, {"Stahlspannung", "Steel stress"});
    return columns;
}

QString comparable(const QString& text)
{
    return text.simplified().toCaseFolded();
}

/// The texts of the page that tables contain, in German. The German texts are in the translations
/// of the page and are needed even if the desktop language is English.
class GermanTexts
{
public:
    static QString of(const char* english)
    {
        static const GermanTexts texts;
        return texts.m_texts.value(QLatin1String(english), QLatin1String(english));
    }

private:
    GermanTexts()
    {
        QTranslator translator; // not installed
        if (!translator.load(QStringLiteral(":/translations/vkd_p_dll_de.qm")))
            return;
        for (const char* name : DesignTypeNames)
            add(translator, name);
        add(translator, NoGroupsText);
        add(translator, RemainingGroupsText);
    }

    void add(const QTranslator& translator, const char* english)
    {
        const QString german = translator.translate("DesignParameter", english);
        if (!german.isEmpty())
            m_texts.insert(QLatin1String(english), german);
    }

    QHash<QString, QString> m_texts;
};

QString pageText(const char* english, vkd::Language language)
{
    return language == vkd::Language::German ? GermanTexts::of(english)
                                             : QString::fromLatin1(english);
}

bool isPageText(const QString& text, const char* english)
{
    return std::any_of(std::begin(Languages), std::end(Languages), [&](vkd::Language language) {
        return comparable(text) == comparable(pageText(english, language));
    });
}
} // namespace

const std::vector<RowColumn>& rowColumns()
{
    static const std::vector<RowColumn> columns = makeColumns();
    return columns;
}

const RowColumn* columnWithHeader(const QString& header)
{
    static const QHash<QString, const RowColumn*> columns = [] {
        QHash<QString, const RowColumn*> byHeader;
        for (const RowColumn& column : rowColumns())
            for (const QString& text : column.headers)
                byHeader.insert(comparable(text), &column);
        return byHeader;
    }();
    return columns.value(comparable(header));
}

QString headerOf(const RowColumn& column, vkd::Language language)
{
    return column.headers[int(language)];
}

QString nameOf(const RowColumn& column, vkd::Language language)
{
    return column.names[int(language)];
}

QString typeName(int type, vkd::Language language)
{
    return type < 0 || type >= int(std::size(DesignTypeNames))
               ? QString()
               : pageText(DesignTypeNames[type], language);
}

int typeOfText(const QString& text)
{
    for (int type = 0; type < int(std::size(DesignTypeNames)); ++type)
        if (isPageText(text, DesignTypeNames[type]) || text.trimmed() == QString::number(type))
            return type;
    return -1;
}

bool isNoGroupsText(const QString& text)
{
    return isPageText(text, NoGroupsText);
}

bool isRemainingGroupsText(const QString& text)
{
    return isPageText(text, RemainingGroupsText);
}

} // namespace plib
