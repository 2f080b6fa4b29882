#pragma once

#include <qnamespace.h>

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// Data roles of the items in the page's tree, a QTreeWidget with the object name "m_list". They
/// provide data to hosts beyond the visible texts. The tree sets them whenever it is filled; items
/// that are not from the catalogue have none.
enum Role {
    /// An int: 0 and 1 are captions, 2 is a plot, 3 is the row of a load case.
    LevelRole = Qt::UserRole + 1,
    /// Set on captions and plots: a QString that identifies the item in the stored choice. It is
    /// the same in every language. Captions without a key of their own share an identifier.
    IdentifierRole,
    /// Set on plots: a QStringList of the captions from the top level to the plot, in the language
    /// that the tree shows.
    CaptionsRole,
    /// Set on plots: true if the plot binds to load cases and has no row. Such a plot produces no
    /// script lines, even if it is checked.
    WaitsForLoadCasesRole,
    /// Set on rows: the number of the load case as an int, as the host offered it.
    LoadCaseRole
};

} // namespace widgetgraphicaloutput
} // namespace plib
} // namespace vkd
