#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QStringList>

namespace plib {

/// Rows as a table for spreadsheets: a line with heads and a line for each row. Each value has a
/// column of its own, with its unit in the head, so that a cell contains one number. Texts and
/// numbers are in the desktop's language.

/// Returns the table as text. The separator is a tab for the clipboard; files have a comma or, in
/// languages with a decimal comma, a semicolon.
QString rowTableText(const DesignRowList& rows, QChar separator);
QChar separatorOfFiles();

/// Returns the same table as an HTML document.
QString rowTableHtml(const DesignRowList& rows);

/// Returns a line "head: before -> after" for each cell that differs, except the groups.
QStringList differentCells(const DesignParameterRow& before, const DesignParameterRow& after);

/// The rows of a table that was read. If there are faults, the table must not be used.
struct RowTable
{
    std::vector<RowPatch> rows;
    bool hasGroups = false; ///< whether there is a column of groups
    QStringList faults;     ///< a line for each bad cell, with its row and column
};

/// Reads a table with heads in any language, in any order and with any columns. Decimal signs are
/// dots or commas; an empty cell of a value means "not set". Empty lines and columns are ignored.
RowTable readRowTable(const QString& text);

/// Returns whether the first line of a text contains the head of a column.
bool looksLikeRowTable(const QString& text);

/// Returns a fault for the row of a table if the record has a minimum reinforcement above its
/// maximum; otherwise an empty text.
QString limitFault(const tagZOB_QUAD_RIM& record, int line);

} // namespace plib
