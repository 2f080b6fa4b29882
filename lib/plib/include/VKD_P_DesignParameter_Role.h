#pragma once

#include <qnamespace.h>

namespace vkd {
namespace plib {
namespace designparameter {

/// Roles of the items of the page's table, the QTableWidget with the object name "table", for
/// hosts.
enum Role {
    /// Items of the first column: a QVector<int> with those groups of the row that other rows name,
    /// too, as numbers of a group list, -1 for the remaining groups. Invalid if there are none.
    SharedGroupsRole = Qt::UserRole + 1
};

} // namespace designparameter
} // namespace plib
} // namespace vkd
