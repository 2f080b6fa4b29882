#pragma once

#include "exchange/rowDescription.h"
#include "exchange/RowPatch.h"

#include <QVariantMap>

namespace plib {

/// Functions for the parameters of a row as a map, the form in which hosts exchange them. The keys
/// are "type" and the names of real fields in tagZOB_QUAD_RIM_Words.h. The values are numbers in
/// base units, with distances as they are edited; an invalid value represents "not set". A map may
/// contain any subset of the keys.

/// Returns all parameters of a record, in numbers with the fewest digits that preserve each value.
QVariantMap parametersOf(const tagZOB_QUAD_RIM& record);

/// Reads parameters, which may come from any file. Returns a message for each key that does not
/// exist and for each value that a dialog would not accept. If there are any messages, the patch
/// must not be used.
QStringList readParameters(const QVariantMap& parameters, RowPatch* patch);

/// Describes valid parameters, including those that are explicitly not set.
std::vector<DescriptionLine> describeParameters(const QVariantMap& parameters);

} // namespace plib
