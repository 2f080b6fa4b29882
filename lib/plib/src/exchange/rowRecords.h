#pragma once

#include "exchange/RowPatch.h"
#include "record/RowsChange.h"

#include <QByteArray>

namespace plib {

/// The MIME type of clipboard data that contains all row parameters, unrounded.
constexpr char RowRecordsType[] = "application/x-vkd-design-parameter-rows";

/// Returns the parameters of rows as clipboard data.
QByteArray bytesOfRows(const DesignRowList& rows);

/// Reads clipboard data, which may come from any program. Returns no rows if the data is malformed.
std::vector<RowPatch> rowsOfBytes(const QByteArray& bytes);

} // namespace plib
