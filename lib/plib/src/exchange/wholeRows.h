#pragma once

#include "record/RowsChange.h"

#include <QByteArray>

#include <optional>

namespace plib {

/// Returns complete rows, with their groups, as bytes for another page of the same process.
QByteArray bytesOfWholeRows(const DesignRowList& rows);

/// Reads such bytes, without the pointers to the bars. Returns an empty optional if they are
/// malformed.
std::optional<DesignRowList> wholeRowsOf(const QByteArray& bytes);

} // namespace plib
