#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QStringList>

namespace plib {

/// Applies copied parameters to rows without changing the groups of the rows. A single copied row
/// is applied to all rows; otherwise each copied row is applied to the corresponding row. Returns
/// the errors. If there are any errors, no row is changed.
QStringList patchRows(const std::vector<RowPatch>& copied, int kindOfSystem, DesignRowList* rows);

} // namespace plib
