#pragma once

#include <qnamespace.h>

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// The levels of plots and of their rows in the page's tree. Captions have the levels below
/// PlotLevel.
enum Level {
    PlotLevel = 2,
    /// The row of a load case
    RowLevel = 3
};

/// Data roles of the items in the page's tree, a QTreeWidget with the object name "m_list". They
/// provide data to hosts in addition to the visible text. The tree sets the data whenever it is
/// filled. Items that do not come from the catalogue have no such data.
enum Role {
    /// An int: 0 and 1 for captions, otherwise a Level.
    LevelRole = Qt::UserRole + 1,
    /// Set on captions and plots: a QString that identifies the item in the stored selection. It is
    /// the same in every language. Captions without keys of their own share an identifier.
    IdentifierRole,
    /// Set on plots: a QStringList of the captions from the top level to the plot, in the language
    /// of the tree.
    CaptionsRole,
    /// Set on plots: true if the plot is bound to load cases and has no row. Such a plot does not
    /// produce script lines, even if it is checked.
    WaitsForLoadCasesRole,
    /// Set on rows: the number of the load case as an int, as specified by the host.
    LoadCaseRole
};

} // namespace widgetgraphicaloutput
} // namespace plib
} // namespace vkd
