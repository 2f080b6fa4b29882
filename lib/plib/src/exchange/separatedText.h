#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace plib {

/// A table as text, with a line for each row: cells separated by tabs, semicolons or commas, and
/// quoted if necessary. Spreadsheets copy and save tables in this form.

/// Returns the character that separates the cells of the first line: a tab, a semicolon or a comma.
/// Without any of them it is a tab.
QChar separatorOf(const QString& text);

/// Returns the cells of all lines. A cell that begins with a quote ends with the closing quote and
/// may contain separators, line ends and doubled quotes.
QVector<QStringList> readCells(const QString& text, QChar separator);

/// Returns a line of cells, with the line end.
QString lineOfCells(const QStringList& cells, QChar separator);

} // namespace plib
