#include "vkd_qt_copyCells.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <algorithm>

namespace {
/// Returns the text of a cell for a spreadsheet, quoted if it contains a tab, a newline or a
/// quotation mark.
QString plainCell(QString text)
{
    const QLatin1Char quote('"');
    if (!text.contains(QLatin1Char('\t')) && !text.contains(QLatin1Char('\n')) &&
        !text.contains(quote))
        return text;
    return quote + text.replace(quote, QStringLiteral("\"\"")) + quote;
}

QString htmlCell(const QString& text)
{
    return QLatin1String("<td>") +
           text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")) +
           QLatin1String("</td>");
}
} // namespace

void vkd_qt_copyCells(QModelIndexList cells,
                      const std::function<QString(const QModelIndex&)>& textOf)
{
    if (cells.isEmpty())
        return;
    std::sort(cells.begin(), cells.end());
    const auto byColumn = [](const QModelIndex& a, const QModelIndex& b) {
        return a.column() < b.column();
    };
    const auto columns = std::minmax_element(cells.begin(), cells.end(), byColumn);
    QString text, html = QStringLiteral("<table>");
    for (auto cell = cells.cbegin(); cell != cells.cend();) {
        html += QLatin1String("<tr>");
        const int row = cell->row();
        for (int column = columns.first->column(); column <= columns.second->column(); ++column) {
            const bool isNext =
                cell != cells.cend() && cell->row() == row && cell->column() == column;
            const QString content = isNext ? textOf(*cell++) : QString();
            text += plainCell(content);
            text += column < columns.second->column() ? QLatin1Char('\t') : QLatin1Char('\n');
            html += htmlCell(content);
        }
        html += QLatin1String("</tr>");
    }
    auto mime = new QMimeData;
    mime->setText(text);
    mime->setHtml(html + QLatin1String("</table>"));
    QApplication::clipboard()->setMimeData(mime);
}
