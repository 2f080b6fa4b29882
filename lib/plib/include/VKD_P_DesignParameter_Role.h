#pragma once

#include <qnamespace.h>

namespace vkd {
namespace plib {
namespace designparameter {

/// Data roles of the items in the page's table, a QTableWidget with the object name "table". They
/// provide data to hosts beyond the visible texts.
enum Role {
    /// Set on items of the first column: a QVector<int> of the row's groups that other rows name as
    /// well. The numbers are those of a group list, -1 for the remaining groups. Invalid if there
    /// are none.
    SharedGroupsRole = Qt::UserRole + 1
};

} // namespace designparameter
} // namespace plib
} // namespace vkd
