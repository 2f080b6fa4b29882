#pragma once

#include "record/DesignParameterData.h"

#include <QString>

#include <set>

namespace plib {

/// These functions return the reason why an operation on rows is impossible, or an empty string if
/// the operation is possible. A direction is -1 for up and 1 for down.

/// Returns why a row cannot be moved in this direction.
QString moveRefusal(const DesignParameterData& data, int row, int direction);

/// Returns why rows cannot be deleted.
QString deletionRefusal(const std::set<int>& rows);

/// Returns why a dialog cannot continue with the next row in this direction.
QString stepRefusal(const DesignParameterData& data, int row, int direction);

} // namespace plib
