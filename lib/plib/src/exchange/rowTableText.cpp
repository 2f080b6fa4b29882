// Writes rows as a table.

#include "exchange/rowColumns.h"
#include "exchange/rowTable.h"
#include "exchange/separatedText.h"
#include "exchange/shortestText.h"
#include "record/designRecord.h"
#include "record/rowText.h"

#include <vkd_h_units.h>

namespace plib {

namespace {
/// Returns the shortest number in the displayed unit that is read back as exactly this value.
QString exactText(float value, int code)
{
    const VkdDimension dimension = vkd_h_dimension(code);
    const double shown = double(value) * dimension.factor;
    const auto isExact = [&](const QString& text) {
        return float(text.toDouble() / dimension.factor) == value;
    };
    const QString usual = QString::number(shown, 'f', qMax(dimension.decimals, 0));
    return isExact(usual) ? usual : shortestText(shown, isExact);
}

QString numberCell(float value, int code)
{
    if (value == NotSet)
        return QString();
    const bool hasComma = vkd::desktopLanguage() == vkd::Language::German;
    const QString text = exactText(value, code);
    return hasComma ? QString(text).replace(QLatin1Char('.'), QLatin1Char(',')) : text;
}

QString cellOf(const DesignParameterRow& row, const RowColumn& column)
{
    switch (column.kind) {
    case RowColumn::Groups: return rowText(row, 0);
    case RowColumn::Type: return typeName(row.record.type, vkd::desktopLanguage());
    case RowColumn::Value: break;
    }
    return numberCell(row.record.*column.field, dimensionCode(column.field));
}

QStringList headers()
{
    QStringList texts;
    for (const RowColumn& column : rowColumns())
        texts << headerOf(column, vkd::desktopLanguage());
    return texts;
}

QStringList cellsOf(const DesignParameterRow& row)
{
    QStringList cells;
    for (const RowColumn& column : rowColumns())
        cells << cellOf(row, column);
    return cells;
}

QString htmlLine(const QStringList& cells, const QString& tag)
{
    QString line = QStringLiteral("<tr>");
    for (const QString& cell : cells)
        line += QStringLiteral("<%1>%2</%1>").arg(tag, cell.toHtmlEscaped());
    return line + QLatin1String("</tr>\n");
}
} // namespace

QChar separatorOfFiles()
{
    return QLatin1Char(vkd::desktopLanguage() == vkd::Language::German ? ';' : ',');
}

QString rowTableText(const DesignRowList& rows, QChar separator)
{
    QString text = lineOfCells(headers(), separator);
    for (const DesignParameterRow& row : rows)
        text += lineOfCells(cellsOf(row), separator);
    return text;
}

QString rowTableHtml(const DesignRowList& rows)
{
    QString html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>\n");
    html += htmlLine(headers(), QStringLiteral("th"));
    for (const DesignParameterRow& row : rows)
        html += htmlLine(cellsOf(row), QStringLiteral("td"));
    return html + QLatin1String("</table></body></html>\n");
}

QStringList differentCells(const DesignParameterRow& before, const DesignParameterRow& after)
{
    QStringList lines;
    for (const RowColumn& column : rowColumns()) {
        const QString old = cellOf(before, column);
        const QString now = cellOf(after, column);
        if (column.kind != RowColumn::Groups && old != now)
            lines << QStringLiteral("%1: %2 -> %3")
                         .arg(headerOf(column, vkd::desktopLanguage()), old, now);
    }
    return lines;
}

} // namespace plib
