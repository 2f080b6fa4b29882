#pragma once

namespace vkd {
namespace plib {
namespace designparameter {

/// The object name of a child object of VKD_P_DesignParameter that publishes the rows to hosts. It
/// exists after init(). Hosts find it with findChild<QObject*>() and use it through its
/// meta-object:
///
/// | Member | Kind | Meaning |
/// |---|---|---|
/// | `bool modified` | property | whether the rows differ from those that were read or written
/// last. A host that has stored the rows itself sets it to false | | `modifiedChanged(bool)` |
/// signal | | | `rowsChanged()` | signal | emitted after each change to the rows, including undo
/// and redo | | `pickingRequested()` | signal | emitted if the user wants to pick the groups of the
/// current row in the 3D view and the page is not in a dialog of the framework. The groups checked
/// in the group dialog have been assigned to the row | | `QVector<int> groups(int row)` | method |
/// returns the groups of a row in ascending order, -1 for the remaining groups, or an empty list if
/// there is no such row | | `bool setGroups(int row, QVector<int> groups)` | method | assigns
/// primary or secondary groups as one undo step. Groups that are new in the row are removed from
/// all other rows except row 0. Returns whether rows have changed; the groups of row 0 never change
/// | | `void finishEditing()` | method | applies the selection in an open list of types; call it
/// before `modified` is read | | `void write(VKD_H_ZOBDoc*, VKD_H_ProjectDialogPage*)` | method |
/// writes the rows like setEntrys(), but to this document. The page can be used afterwards, and
/// `modified` and the undo history do not change | | `QByteArray rows()` | method | returns all
/// rows for setRows() | | `bool setRows(QByteArray)` | method | replaces all rows with those of
/// another page and clears the undo history. Returns false and changes nothing if the data is
/// malformed |
constexpr char RowsObject[] = "rows";

} // namespace designparameter
} // namespace plib
} // namespace vkd
