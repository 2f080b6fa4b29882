#pragma once

#include <record/RowsChange.h>

namespace workbench {

/// Returns a line for each value that differs between two states of the rows, for each new row and
/// for each deleted row. Rows are identified by their groups; new rows are compared with `fresh`.
QString describedChanges(const plib::DesignRowList& before, const plib::DesignRowList& after,
                         const plib::DesignParameterRow& fresh);

} // namespace workbench
