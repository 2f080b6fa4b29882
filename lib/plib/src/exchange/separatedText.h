#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace plib {

/// Functions for tables in text form with one line per row. Cells are separated by tabs, semicolons
/// or commas, and are quoted if necessary. Spreadsheet programs use this format for the clipboard
/// and for files.

/// Returns the character that separates the cells of the first line that is not blank: a tab, a
/// semicolon or a comma. If the line contains none of these characters, returns a tab.
QChar separatorOf(const QString& text);

/// Returns the cells of all lines. A cell that begins with a quotation mark ends with the closing
/// quotation mark and may contain separators, newlines and doubled quotation marks.
QVector<QStringList> readCells(const QString& text, QChar separator);

/// Returns a line of cells, including the newline.
QString lineOfCells(const QStringList& cells, QChar separator);

} // namespace plib
