#pragma once

#include "DesignParameterData.h"

namespace plib {

/// Sees to it that the project has design parameters: if nothing at all is stored for them, one
/// record for the remaining groups with the default values.
void checkAndCreateZobDefault(int index);

/// Appends the project's records as rows, neighbours with equal parameters folded into one row. A
/// record for the remaining groups goes to the front. Records of other programs are skipped.
void readRowsFromZob(DesignParameterData& data);

/// Appends a row with default parameters and without groups.
DesignParameterRow& addDefaultRow(DesignParameterData& data);

/// Replaces the project's records by those of the rows, one for each group, first those for the
/// remaining groups; rows without groups have no place there. The first call turns the rows into
/// the stored form, in which they stay, and sets `converted`.
///
/// Records of other programs are moved to the scratch store and not put back: the key pair belongs
/// to the design parameters, and this loss is meant.
void writeRowsToZob(DesignParameterData& data, bool& converted);

} // namespace plib
