#pragma once

#include "DesignParameterData.h"

#include <QString>

class VKD_H_ProjectDialogPage;

namespace plib {

/// The parameters of a row as the text of an entry. Its record is in the stored form. The text has
/// no place for the limits of the reinforcement, `mode` and the reserved words.
QString entryText(const tagZOB_QUAD_RIM& record);

/// Reads an entry into the record of a row, in the stored form; what the text does not hold is left
/// as it is, and a text of fewer than seven fields leaves all of it. What is no number reads as 0.
void parseEntry(const QString& text, DesignParameterRow& row);

/// Appends the rows without groups that the page keeps in its entries `MerPara1`, `MerPara2`, and
/// so on, to the first that is missing or empty.
void readRowsFromEntries(DesignParameterData& data, const VKD_H_ProjectDialogPage& page);

/// Keeps the rows without groups in the page's entries and removes those of an earlier, longer
/// list. The rows are in the stored form.
void writeRowsToEntries(const DesignParameterData& data, VKD_H_ProjectDialogPage& page);

} // namespace plib
