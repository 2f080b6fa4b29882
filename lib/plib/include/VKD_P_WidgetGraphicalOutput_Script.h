#pragma once

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// The object name of a child object of VKD_P_WidgetGraphicalOutput that relates the lines of a
/// script to the items of the tree. Hosts find it with findChild<QObject*>() and use it through its
/// meta-object. Lines are counted from 0. The results refer to the last script that getTORVAL() has
/// returned; they are empty on a split page and after the tree has been rebuilt. If only check
/// states have changed since then, the results may be wrong, so a host must first call getTORVAL()
/// again.
///
/// Methods:
/// - `QTreeWidgetItem* itemOfLine(int line)` returns the plot or row that wrote a line, or null for
///   the lines around the plots.
/// - `QVector<int> linesOfItem(QTreeWidgetItem*)` returns the first line of a caption, plot or row
///   and the number of its lines, which are adjacent. The list is empty if the item wrote no line.
/// - `QStringList possibleLines(bool english)` returns an example of each line that a script can
///   contain with this catalogue, except for the beginning and the end of the program block.
constexpr char ScriptObject[] = "script";

} // namespace widgetgraphicaloutput
} // namespace plib
} // namespace vkd
