#pragma once

#include "record/DesignParameterData.h"

#include <QString>

#include <set>

namespace plib {

/// These functions return the reason why an operation on rows is impossible, or an empty string if
/// it is possible. A direction is -1 for up and 1 for down.

/// For moving a row.
QString moveRefusal(const DesignParameterData& data, int row, int direction);

/// For deleting rows.
QString deletionRefusal(const std::set<int>& rows);

/// For continuing with another row in a dialog.
QString stepRefusal(const DesignParameterData& data, int row, int direction);

} // namespace plib
