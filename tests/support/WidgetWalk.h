#pragma once

#include <QSet>
#include <QStringList>

class QWidget;

/// Looks at each visible widget of a window as it stands on the screen, for tests that no window
/// is to escape from. A fault names the window, the object name, the class and the text.
namespace testsupport {

/// The faults of a visible window, each of its tabs being brought to the front:
/// a control without an accessible name, or with that of another one;
/// a text that its widget has no room for, and a widget that stands out of the one around it;
/// Tab going another way than the eye, which is line by line, and through a box in one go;
/// a choice or a number of a dialog that the wheel changes;
/// two texts with one mnemonic, two actions with one short cut.
/// Cells are not looked at, since tables may cut them; `fixedColumns` are the object names of
/// those tables whose headers may be cut as well.
QStringList faults(QWidget& window, const QSet<QString>& fixedColumns = {});

/// Every text of a visible window that a user can read or hear: titles, labels, entries, cells,
/// menus, tool tips, names for screen readers. What is typed or scripted is not among them.
QSet<QString> texts(QWidget& window);

} // namespace testsupport
