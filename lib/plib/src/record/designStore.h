#pragma once

#include "record/DesignParameterData.h"

namespace plib {

/// Stores a default record for the remaining groups if the project has no design records.
void checkAndCreateZobDefault(int index);

/// Appends the project's records as rows. Consecutive records with equal parameters become one row.
/// A record for the remaining groups becomes the first row. Records of other programs are skipped.
void readRowsFromZob(DesignParameterData& data);

/// Returns a row with default parameters and without groups; addDefaultRow() appends such a row.
DesignParameterRow defaultRow(const DesignParameterData& data);
DesignParameterRow& addDefaultRow(DesignParameterData& data);

/// Replaces the project's records with the records of the rows: one record per group, starting with
/// the remaining groups. Rows without groups are not stored. If `converted` is false, converts the
/// rows to the stored form, in which they remain, and sets `converted`.
///
/// Records of other programs are moved to the scratch store and not restored. This loss is
/// intentional, because the key pair belongs to the design parameters.
void writeRowsToZob(DesignParameterData& data, bool& converted);

} // namespace plib
