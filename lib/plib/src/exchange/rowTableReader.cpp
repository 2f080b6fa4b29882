// Reads rows from a table.

#include "exchange/rowColumns.h"
#include "exchange/rowTable.h"
#include "exchange/separatedText.h"
#include "exchange/TableText.h"
#include "record/designRecord.h"
#include "record/limitPairs.h"

#include <StructLineEdit.h>
#include <vkd_h_numberText.h>

#include <algorithm>

namespace plib {

namespace {
constexpr int LongestQuotation = 50;

QString quotation(const QString& cell)
{
    const QString text = cell.simplified();
    return text.size() <= LongestQuotation ? text : text.left(LongestQuotation) + QChar(0x2026);
}

bool isEmptyLine(const QStringList& cells)
{
    return std::all_of(cells.begin(), cells.end(),
                       [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

/// Returns the reason why a number is rejected, or an empty string if it is accepted.
QString refusal(VkdNumberState state, const QString& cell)
{
    const QString text = quotation(cell);
    switch (state) {
    case VkdNumberState::Accepted: return QString();
    case VkdNumberState::TooLarge: return TableText::tr("\"%1\" is too large").arg(text);
    case VkdNumberState::TooSmall: return TableText::tr("\"%1\" is too small").arg(text);
    case VkdNumberState::TwoDecimalSigns:
        return TableText::tr("\"%1\" has two decimal separators").arg(text);
    default: return TableText::tr("\"%1\" is not a number").arg(text);
    }
}

class TableReader
{
public:
    RowTable read(const QString& text)
    {
        const QVector<QStringList> lines = readCells(text, separatorOf(text));
        for (int line = 0; line < lines.size(); ++line) {
            if (isEmptyLine(lines[line]))
                continue;
            if (m_columns.empty())
                readHeaders(lines[line], line + 1);
            else
                readRow(lines[line], line + 1);
        }
        if (m_table.rows.empty() && m_table.faults.isEmpty())
            m_table.faults << TableText::tr("There are no rows below the column headers.");
        return m_table;
    }

private:
    void readHeaders(const QStringList& headers, int line)
    {
        for (const QString& header : headers) {
            const RowColumn* column = columnWithHeader(header);
            if (!column && !header.trimmed().isEmpty())
                m_table.faults << TableText::tr("Row %1: \"%2\" is not a column header.")
                                      .arg(QString::number(line), quotation(header));
            if (column && std::count(m_columns.begin(), m_columns.end(), column) > 0)
                m_table.faults << TableText::tr("Row %1: there are two columns \"%2\".")
                                      .arg(QString::number(line), quotation(header));
            m_table.hasGroups |= column && column->kind == RowColumn::Groups;
            m_columns.push_back(column);
            m_headers << header.simplified();
        }
    }

    void readRow(const QStringList& cells, int line)
    {
        RowPatch row;
        row.line = line;
        for (int i = 0; i < qMax(m_headers.size(), cells.size()); ++i) {
            const QString header = m_headers.value(i);
            const RowColumn* column = columnAt(i);
            if (!column && !header.isEmpty())
                continue; // the header was rejected
            const QString cell = cells.value(i);
            const QString reason =
                column ? readCell(cell, *column, &row) : refusedWithoutHeader(cell);
            if (!reason.isEmpty())
                m_table.faults << TableText::tr("Row %1, %2: %3.")
                                      .arg(QString::number(line),
                                           column ? header : TableText::tr("column %1").arg(i + 1),
                                           reason);
        }
        m_table.rows.push_back(row);
    }

    const RowColumn* columnAt(int index) const
    {
        return index < int(m_columns.size()) ? m_columns[std::size_t(index)] : nullptr;
    }

    static QString refusedWithoutHeader(const QString& cell)
    {
        return cell.trimmed().isEmpty()
                   ? QString()
                   : TableText::tr("\"%1\" has no column header").arg(quotation(cell));
    }

    /// Returns the reason if the cell is rejected, otherwise an empty string.
    static QString readCell(const QString& cell, const RowColumn& column, RowPatch* row)
    {
        if (column.kind == RowColumn::Groups)
            row->groups = cell.trimmed();
        else if (column.kind == RowColumn::Type)
            return readType(cell, row);
        else
            return readNumberCell(cell, column.field, row);
        return QString();
    }

    static QString readType(const QString& cell, RowPatch* row)
    {
        const int type = typeOfText(cell);
        if (type < 0)
            return TableText::tr("\"%1\" is not a type").arg(quotation(cell));
        row->setType(type);
        return QString();
    }

    RowTable m_table;
    std::vector<const RowColumn*> m_columns; // null for an empty header
    QStringList m_headers;
};
} // namespace

QString readNumberCell(const QString& cell, RealField field, RowPatch* row)
{
    const int code = dimensionCode(field);
    const StructLineEdit description = vkd_h_defaultStructLineEdit(code);
    const VkdNumberReading number = vkd_h_readNumber(cell, description);
    const bool isBar = code == vkd::plib::designparameter::BarDiameter;
    if (isBar && number.state == VkdNumberState::Accepted && float(number.value) == 0)
        return refusal(VkdNumberState::TooSmall, cell); // zero would mean "not set"
    row->set(field, float(number.value));
    return refusal(number.state, cell);
}

RowTable readRowTable(const QString& text)
{
    return TableReader().read(text);
}

bool looksLikeRowTable(const QString& text)
{
    const QString first = text.trimmed().section(QLatin1Char('\n'), 0, 0);
    const QVector<QStringList> lines = readCells(first, separatorOf(first));
    return !lines.isEmpty() &&
           std::any_of(lines.first().begin(), lines.first().end(), columnWithHeader);
}

QString limitFault(const tagZOB_QUAD_RIM& record, int line)
{
    for (const RowColumn& column : rowColumns())
        for (const LimitPair& pair : LimitPairs)
            if (column.field == pair.minimum &&
                !isInOrder(record.*pair.minimum, record.*pair.maximum))
                return TableText::tr("Row %1, %2: the minimum is greater than the maximum.")
                    .arg(QString::number(line), headerOf(column, vkd::desktopLanguage()));
    return QString();
}

} // namespace plib
