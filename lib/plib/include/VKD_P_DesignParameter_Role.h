#pragma once

#include <qnamespace.h>

namespace vkd {
namespace plib {
namespace designparameter {

/// Data roles of the items in the page's table, a QTableWidget with the object name "table". They
/// provide data to hosts in addition to the visible text.
enum Role {
    /// Set on items of the first column: a QVector<int> with the row's groups that are also listed
    /// in other rows. The remaining groups are represented by -1, as in any list of groups. The
    /// data is invalid if there are no such groups.
    SharedGroupsRole = Qt::UserRole + 1
};

} // namespace designparameter
} // namespace plib
} // namespace vkd
