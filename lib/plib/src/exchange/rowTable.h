#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QStringList>

namespace plib {

/// Functions that convert rows to a table for spreadsheets and back. The table has one line with
/// column headers and one line per row. Each value has its own column, whose header contains the
/// unit, so that each cell contains only a number. Text and numbers are in the desktop language.

/// Returns the table as text. The separator is a tab on the clipboard. In files, it is a comma or,
/// in languages with a decimal comma, a semicolon.
QString rowTableText(const DesignRowList& rows, QChar separator);
QChar separatorOfFiles();

/// Returns the same table as an HTML document.
QString rowTableHtml(const DesignRowList& rows);

/// Returns a line "header: before -> after" for each cell that differs. Does not compare the
/// groups.
QStringList differentCells(const DesignParameterRow& before, const DesignParameterRow& after);

/// The rows of a table that was read. If there are any faults, the table must not be used.
struct RowTable
{
    std::vector<RowPatch> rows;
    bool hasGroups = false; ///< whether there is a column with groups
    QStringList faults;     ///< one line per invalid cell, with its row and column
};

/// Reads a table whose headers may be in any language and order. Columns may be missing. The
/// decimal separator may be a point or a comma. An empty cell in a value column means "not set".
/// Empty lines and columns are ignored.
RowTable readRowTable(const QString& text);

/// Reads a cell with a number in the displayed unit and sets the field in the row. Returns the
/// reason if the cell is rejected, otherwise an empty string.
QString readNumberCell(const QString& cell, RealField field, RowPatch* row);

/// Returns whether the first line of the text contains a column header.
bool looksLikeRowTable(const QString& text);

/// Returns an error message for a row of the table if a minimum reinforcement in the record is
/// greater than its maximum, otherwise an empty string.
QString limitFault(const tagZOB_QUAD_RIM& record, int line);

} // namespace plib
