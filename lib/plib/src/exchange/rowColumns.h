#pragma once

#include "record/designFields.h"

#include <vkd_language.h>

#include <QString>

namespace plib {

/// A column of the table in which rows are copied to spreadsheets and files. The column contains
/// the groups, the type or a single value.
struct RowColumn
{
    enum Kind { Groups, Type, Value };
    Kind kind;
    RealField field;    ///< null unless the column contains a value
    QString headers[2]; ///< header in German and English; includes the unit of a value
    QString names[2];   ///< name of a value without its side and unit: the same for both sides
    int side;           ///< 1 for a value of the lower side, otherwise 0
};

/// Returns all columns in the order in which they are written.
const std::vector<RowColumn>& rowColumns();

/// Returns the column with this header in any language, or null. Upper and lower case and the
/// number of spaces are ignored, but the unit must match.
const RowColumn* columnWithHeader(const QString& header);

QString headerOf(const RowColumn& column, vkd::Language language);
QString nameOf(const RowColumn& column, vkd::Language language);

/// typeName() converts a design type to its name. typeOfText() converts a name in any language or a
/// number to the type, and returns -1 if there is no such type.
QString typeName(int type, vkd::Language language);
int typeOfText(const QString& text);

/// These functions return whether a string, in any language, denotes "no groups" or the remaining
/// groups.
bool isNoGroupsText(const QString& text);
bool isRemainingGroupsText(const QString& text);

} // namespace plib
