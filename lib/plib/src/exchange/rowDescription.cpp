#include "exchange/rowDescription.h"

#include "exchange/rowColumns.h"
#include "record/designRecord.h"
#include "record/rowText.h"

#include <StructLineEdit.h>
#include <vkd_dbo_groupTexts.h>
#include <vkd_h_numberText.h>

#include <QCoreApplication>

#include <algorithm>

namespace plib {

namespace {
constexpr int MostRanges = 20;
constexpr int MostTitles = 6;
constexpr int LongestTitle = 50;
const QChar NoValue(0x2013);

struct DescriptionText
{
    Q_DECLARE_TR_FUNCTIONS(RowDescription)
};

bool contains(const SixFields& fields, RealField field)
{
    return std::find(fields.begin(), fields.end(), field) != fields.end();
}

/// Returns whether the field belongs to the first `count` layers of its side.
bool isInLayers(const SixFields& fields, RealField field, int count)
{
    const auto place = std::find(fields.begin(), fields.end(), field) - fields.begin();
    return int(place) % int(fields.size() / 2) < count;
}

/// Returns whether the dialogs for a row of this type have a field for the value.
bool isInDialogs(RealField field, int type)
{
    const int layers = type == ThreeLayers ? 3 : 2;
    if (dimensionCode(field) == vkd::plib::designparameter::Coordinate)
        return type == Circular;
    if (contains(fields::Directions, field))
        return isInLayers(fields::Directions, field,
                          type == TwoLayers || type == ThreeLayers ? layers : 1);
    for (const SixFields& six : {fields::Distances, fields::Diameters, fields::Minimum,
                                 fields::Maximum, fields::CrackWidths, fields::Stresses})
        if (contains(six, field))
            return isInLayers(six, field, layers);
    return false;
}

QString shortened(const QString& title)
{
    const QString line = title.simplified();
    return line.size() <= LongestTitle ? line : line.left(LongestTitle) + QChar(0x2026);
}

QString shownGroups(const std::vector<int>& groups)
{
    const QString separator = QStringLiteral(", ");
    const QStringList ranges = vkd::dbo::groupRanges(groups).split(separator);
    return ranges.size() <= MostRanges
               ? ranges.join(separator)
               : ranges.mid(0, MostRanges).join(separator) + separator + QChar(0x2026);
}

/// Returns the groups as ranges, followed by a line for each of the first groups with a title.
QString groupsWithTitles(const DesignParameterRow& row, const GroupTitles& titles)
{
    if (row.groups.empty() || isRemainingGroups(row.groups))
        return rowText(row, 0);
    QStringList lines{shownGroups(row.groups)};
    for (int group : row.groups) {
        const QString title = shortened(titles.value(group));
        if (title.isEmpty())
            continue;
        if (lines.size() > MostTitles) {
            lines << QString(QChar(0x2026));
            break;
        }
        lines << vkd::dbo::groupText(group) + QLatin1String(": ") + title;
    }
    return lines.join(QLatin1Char('\n'));
}

QString shownValue(float value, int code)
{
    return value == NotSet ? QString(NoValue)
                           : vkd_h_numberText(double(value), vkd_h_defaultStructLineEdit(code));
}

/// Adds a value to the line with its name, at the position for its side.
void addValue(const RowColumn& column, float value, std::vector<DescriptionLine>* lines)
{
    const int code = dimensionCode(column.field);
    const QString name = nameOf(column, vkd::desktopLanguage());
    auto line = std::find_if(lines->begin(), lines->end(),
                             [&name](const auto& present) { return present.name == name; });
    if (line == lines->end())
        line = lines->insert(line, {name, {}, vkd_h_suffixText(vkd_h_defaultStructLineEdit(code))});
    while (line->values.size() < column.side)
        line->values << QString();
    line->values << shownValue(value, code);
}

bool isWithoutValue(const DescriptionLine& line)
{
    return std::all_of(line.values.begin(), line.values.end(),
                       [](const QString& value) { return value == NoValue; });
}

QString htmlCell(const QString& text, const char* attributes)
{
    return QStringLiteral("<td%1>%2</td>")
        .arg(QLatin1String(attributes),
             text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QString htmlLine(const DescriptionLine& line)
{
    QString html = QLatin1String("<tr>") + htmlCell(line.name, " style='white-space:nowrap'");
    if (line.values.size() < 2 && line.unit.isEmpty())
        return html + htmlCell(line.values.value(0), " colspan='3'") + QLatin1String("</tr>");
    for (int side = 0; side < 2; ++side)
        html += htmlCell(line.values.value(side), " align='right'");
    return html + htmlCell(line.unit, "") + QLatin1String("</tr>");
}
} // namespace

std::vector<DescriptionLine> describeValues(const tagZOB_QUAD_RIM& record,
                                            const std::function<bool(RealField)>& isShown)
{
    std::vector<DescriptionLine> lines;
    for (const RowColumn& column : rowColumns())
        if (column.kind == RowColumn::Value && isShown(column.field))
            addValue(column, record.*column.field, &lines);
    return lines;
}

std::vector<DescriptionLine> describeRow(const DesignParameterRow& row, const GroupTitles& titles)
{
    const tagZOB_QUAD_RIM& record = row.record;
    std::vector<DescriptionLine> lines{
        {headerOf(rowColumns()[0], vkd::desktopLanguage()), {groupsWithTitles(row, titles)}, {}},
        {headerOf(rowColumns()[1], vkd::desktopLanguage()), {rowText(row, 1)}, {}}};
    if (record.type > NoDesign)
        for (const DescriptionLine& line : describeValues(
                 record, [&](RealField field) { return isInDialogs(field, record.type); }))
            if (!isWithoutValue(line))
                lines.push_back(line);
    return lines;
}

QString descriptionHtml(const std::vector<DescriptionLine>& lines, const QString& note)
{
    const bool hasSides = std::any_of(lines.begin(), lines.end(),
                                      [](const auto& line) { return line.values.size() > 1; });
    QString html = QStringLiteral("<table cellspacing='0' cellpadding='2'>");
    bool hasHeader = !hasSides;
    for (const DescriptionLine& line : lines) {
        if (!hasHeader && line.values.size() > 1) {
            hasHeader = true;
            html += htmlLine({QString(),
                              {DescriptionText::tr("Upper"), DescriptionText::tr("Lower")},
                              QString()});
        }
        html += htmlLine(line);
    }
    html += QLatin1String("</table>");
    if (!note.isEmpty())
        html += QLatin1String("<p>") +
                note.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")) +
                QLatin1String("</p>");
    return html;
}

} // namespace plib
