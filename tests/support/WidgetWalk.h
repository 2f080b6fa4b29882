#pragma once

#include <QSet>
#include <QStringList>

class QWidget;

/// Checks each visible widget of a window as the user sees it, for tests that cover all windows. A
/// fault contains the window, the object name, the class and the text.
namespace testsupport {

/// Returns the faults of a visible window, with each of its tabs shown in turn:
/// a control without an accessible name, or with that of another one;
/// a text that does not fit its widget, and a widget that extends beyond its parent;
/// a tab order that differs from the reading order: line by line, and each box as a whole;
/// a choice or a number of a dialog that the wheel changes;
/// two texts with the same mnemonic, two actions with the same shortcut.
/// Cells are not checked, since tables may cut them off; `fixedColumns` are the object names of
/// tables whose headers may be cut off as well.
QStringList faults(QWidget& window, const QSet<QString>& fixedColumns = {});

/// Returns every text of a visible window that a user can read or hear: titles, labels, entries,
/// cells, menus, tool tips, names for screen readers. Typed texts and scripts are not included.
QSet<QString> texts(QWidget& window);

} // namespace testsupport
