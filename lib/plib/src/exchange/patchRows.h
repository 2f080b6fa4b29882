#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QStringList>

namespace plib {

/// Sets copied parameters in rows and leaves their groups. A single copied row is set in all of
/// them, otherwise each copied row in its own. Returns the faults; if there are any, no row is
/// changed.
QStringList patchRows(const std::vector<RowPatch>& copied, int kindOfSystem, DesignRowList* rows);

} // namespace plib
