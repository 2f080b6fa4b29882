#pragma once

#include "record/designFields.h"
#include "record/RowsChange.h"

namespace plib {

/// The common parameters of several rows, for a dialog that edits all of them.
struct CommonRecord
{
    tagZOB_QUAD_RIM record{};     ///< "not set" in the fields in which the rows differ
    std::vector<RealField> mixed; ///< the fields in which the rows differ

    bool isMixed(RealField field) const;
};

/// Returns the common values of the rows with these numbers, of which there must be at least one.
/// The type of the result has only the fields that the types of all rows have: it is the type with
/// the fewest layers or, if only some of the rows are circular, the type with two orthogonal
/// layers.
CommonRecord commonRecord(const DesignRowList& rows, const std::set<int>& numbers);

/// Returns the text of each different value of the field, in the order of the rows, with units. A
/// long list is shortened.
QString differentValues(const DesignRowList& rows, const std::set<int>& numbers, RealField field);

} // namespace plib
