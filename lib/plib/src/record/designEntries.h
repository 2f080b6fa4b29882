#pragma once

#include "record/DesignParameterData.h"

#include <QString>

class VKD_H_ProjectDialogPage;

namespace plib {

/// Returns the parameters of a row as the text of an entry. The record must be in the stored form.
/// The text does not contain the minimum and maximum reinforcement, `mode` or the reserved words.
QString entryText(const tagZOB_QUAD_RIM& record);

/// Reads an entry, which contains the stored form, into the record of a row. Fields that are
/// missing from the text do not change. A text with fewer than seven fields has no effect. A value
/// that is not a number is read as 0.
void parseEntry(const QString& text, DesignParameterRow& row);

/// Appends the rows without groups that are saved on the page in the entries `MerPara1`, `MerPara2`
/// and so on. Stops at the first entry that is missing or empty.
void readRowsFromEntries(DesignParameterData& data, const VKD_H_ProjectDialogPage& page);

/// Saves the rows without groups in entries of the page and removes superfluous entries of an
/// earlier, longer list. The rows must be in the stored form.
void writeRowsToEntries(const DesignParameterData& data, VKD_H_ProjectDialogPage& page);

} // namespace plib
