#pragma once

#include "record/designFields.h"

#include <vkd_language.h>

#include <QString>

namespace plib {

/// A column of the table in which rows are copied to spreadsheets and files: the groups, the type
/// or a single value.
struct RowColumn
{
    enum Kind { Groups, Type, Value };
    Kind kind;
    RealField field;  ///< null unless it is a value
    QString heads[2]; ///< in German and English; with the unit of a value
};

/// Returns all columns in the order in which they are written.
const std::vector<RowColumn>& rowColumns();

/// Returns the column with this head in any language, or null. The case and the number of blanks do
/// not matter, but the unit does.
const RowColumn* columnWithHead(const QString& head);

QString headOf(const RowColumn& column, vkd::Language language);

/// Return the text of a design type, and the type of a text in any language or of a number; -1 if
/// there is none.
QString typeName(int type, vkd::Language language);
int typeOfText(const QString& text);

/// Returns whether a text in any language names no groups, or the remaining groups.
bool isNoGroupsText(const QString& text);
bool isRemainingGroupsText(const QString& text);

} // namespace plib
