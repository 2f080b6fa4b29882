#pragma once

#include "exchange/RowPatch.h"
#include "record/limitPairs.h"
#include "record/RowsChange.h"

#include <QStringList>

#include <optional>

namespace plib {

/// Applies copied parameters to rows without changing the groups of the rows. A single copied row
/// is applied to all rows; otherwise each copied row is applied to the corresponding row. Returns
/// the errors. If there are any errors, no row is changed.
QStringList patchRows(const std::vector<RowPatch>& copied, int kindOfSystem, DesignRowList* rows);

/// A row with a minimum reinforcement above the corresponding maximum.
struct LimitFault
{
    int row;
    LimitPair pair;
    float minimum;
    float maximum;
};

/// Returns the first row that would have such a fault after the patch is applied to the rows with
/// these numbers, or nothing. Checks a pair of limits only if the patch sets one of them: the user
/// must be able to change other fields of rows that were already invalid.
std::optional<LimitFault> limitFault(const DesignRowList& rows, const std::set<int>& numbers,
                                     const RowPatch& patch);

} // namespace plib
