#pragma once

#include <QSet>
#include <QStringList>

class QWidget;

/// Checks of all visible widgets of a window as it is shown, for tests of every window. A fault
/// contains the window's title and the widget's object name, class and text.
namespace testsupport {

/// Returns the faults of a visible window on all of its tabs:
/// - controls without an accessible name, or with the same name as another control;
/// - cut texts, and widgets that extend beyond their parent;
/// - a tab order that differs from the reading order, which is line by line within each box;
/// - choices or numbers of a dialog that the wheel changes;
/// - mnemonics and shortcuts that are used twice.
/// Cells are not checked, because tables may cut them. `fixedColumns` are the object names of
/// tables whose headers may also be cut.
QStringList faults(QWidget& window, const QSet<QString>& fixedColumns = {});

/// Returns every text of a visible window that a user can read or hear: titles, labels, entries,
/// cells, menus, tool tips, accessible names. Typed texts and scripts are not included.
QSet<QString> texts(QWidget& window);

} // namespace testsupport
