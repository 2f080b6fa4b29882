#pragma once

#include "record/RowsChange.h"

#include <QByteArray>

#include <optional>

namespace plib {

/// Returns complete rows, with their groups, as bytes for another page of the same process.
QByteArray bytesOfWholeRows(const DesignRowList& rows);

/// Reads rows from bytes that bytesOfWholeRows() has returned, and sets `barData` in these rows.
/// Returns an empty optional if the bytes are malformed.
std::optional<DesignRowList> wholeRowsOf(const QByteArray& bytes,
                                         const VKD_A_BarDiameterData* barData);

} // namespace plib
