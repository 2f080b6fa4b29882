#pragma once

namespace vkd {
namespace plib {
namespace designparameter {

/// The object name of a child object of VKD_P_DesignParameter that publishes the rows to hosts. It
/// exists after init(). Hosts find it with findChild<QObject*>() and use it through its
/// meta-object. Rows are counted from 0.
///
/// Property `bool modified`: whether the rows differ from those that were read or written last. A
/// host that has stored the rows itself sets it to false. If a host sets it to true, it stays true
/// even if the user undoes all changes.
///
/// Signals:
/// - `modifiedChanged(bool)`
/// - `rowsChanged()` is emitted after each change to the rows, including undo and redo.
/// - `pickingRequested()` is emitted if the user wants to pick the groups of the current row in the
///   3D view and the page is not in a dialog of the framework. The groups that are checked in the
///   group dialog have been assigned to the row.
///
/// Methods:
/// - `QVector<int> groups(int row)` returns the groups of a row in ascending order, -1 for the
///   remaining groups, or an empty list if there is no such row.
/// - `bool setGroups(int row, QVector<int> groups)` assigns primary or secondary groups as one undo
///   step. Groups that are new in the row are removed from all other rows except row 0. Returns
///   whether rows have changed. The groups of row 0 never change.
/// - `bool finishEditing()` applies the selection in an open list of types, and groups that the
///   user is typing. If these groups are not accepted, they stay in their line, which gets the
///   focus and shows the reason, and the method returns false. Call it before `modified` is read.
/// - `void write(VKD_H_ZOBDoc*, VKD_H_ProjectDialogPage*)` writes the rows like setEntrys(), but to
///   this document. The page can be used afterwards, and `modified` and the undo history do not
///   change.
/// - `QByteArray rows()` returns all rows for setRows().
/// - `bool setRows(QByteArray)` replaces all rows with those of another page and clears the undo
///   history. Returns false and changes nothing if the data is malformed.
/// - `QByteArray steps()` returns the undo history for setSteps(), or an empty array without steps.
/// - `bool setSteps(QByteArray)` replaces the undo history with that of another page of the same
///   process, and sets `modified` as on that page. Does nothing and returns false if the rows of
///   the pages differ.
constexpr char RowsObject[] = "rows";

/// The object name of a child object of VKD_P_DesignParameter that provides the parameters of rows
/// as maps. It exists after init(). The keys of the maps are "type" and the names of real fields in
/// tagZOB_QUAD_RIM_Words.h. The values are numbers in base units. The first distance is measured
/// from the surface, and the others from the previous layer. An invalid value represents "not set".
///
/// Methods:
/// - `QVariantMap current()` returns all parameters of the current row, or an empty map if there is
///   none.
/// - `QStringList faults(QVariantMap)` returns a message for each parameter that is unknown or that
///   the page would not accept.
/// - `QString description(QVariantMap)` returns the parameters as a table in rich text.
/// - `QStringList setInSelectedRows(QVariantMap, QStringList stepName)` sets the parameters in all
///   selected rows as one undo step. Its name consists of the context and the source text of a
///   translation and an optional argument that replaces "%1"; the page translates it when it is
///   shown. A name that is a QString is not translated. Other parameters and the groups do not
///   change. If there are faults, the method returns them and changes nothing.
constexpr char ParametersObject[] = "rowParameters";

} // namespace designparameter
} // namespace plib
} // namespace vkd
