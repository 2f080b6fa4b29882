#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QStringList>

namespace plib {

/// Functions for rows as a table for spreadsheets: one line with column headers and one line per
/// row. Each value has its own column, whose header contains the unit, so that each cell contains
/// only a number. Text and numbers are in the desktop language.

/// Returns the table as text. The separator is a tab for the clipboard. In files, it is a comma or,
/// in languages with a decimal comma, a semicolon.
QString rowTableText(const DesignRowList& rows, QChar separator);
QChar separatorOfFiles();

/// Returns the same table as an HTML document.
QString rowTableHtml(const DesignRowList& rows);

/// Returns a line "header: before -> after" for each cell that differs, except for the groups.
QStringList differentCells(const DesignParameterRow& before, const DesignParameterRow& after);

/// The rows of a table that was read. If there are any faults, the table must not be used.
struct RowTable
{
    std::vector<RowPatch> rows;
    bool hasGroups = false; ///< whether there is a column with groups
    QStringList faults;     ///< one line per invalid cell, with its row and column
};

/// Reads a table whose headers may be in any language and order. Columns may be missing. Decimal
/// separators are points or commas, and an empty cell means "not set" for a value. Empty lines and
/// columns are ignored.
RowTable readRowTable(const QString& text);

/// Returns whether the first line of a text contains a column header.
bool looksLikeRowTable(const QString& text);

/// Returns an error message for the row of a table if a minimum reinforcement in the record is
/// above its maximum, otherwise an empty string.
QString limitFault(const tagZOB_QUAD_RIM& record, int line);

} // namespace plib
