#pragma once

#include <QSet>
#include <QStringList>

class QWidget;

/// Checks for the visible widgets of a window. Tests run them on every window. Each reported
/// problem contains the window's title and the widget's object name, class and text.
namespace testsupport {

/// Returns the problems of a visible window on all of its tabs:
/// - controls without an accessible name or with the same name as another control;
/// - truncated text, and widgets that extend beyond their parent or overlap each other;
/// - buttons that show nothing, or only a picture without a tool tip;
/// - a tab order that differs from the reading order, which is row by row within each group box;
/// - dialog choices or numbers that the mouse wheel changes;
/// - mnemonics and shortcuts that are used twice.
/// Cells are not checked, because tables may truncate them. `fixedColumns` are the object names of
/// tables whose headers may also be truncated. In windows whose class is in `tabByColumns`, Tab
/// follows the columns of all group boxes.
QStringList faults(QWidget& window, const QSet<QString>& fixedColumns = {},
                   const QSet<QString>& tabByColumns = {});

/// Returns all texts of a visible window that a user can read or hear: titles, labels, list
/// entries, cells, menus, tool tips, accessible names. User input and scripts are not included.
QSet<QString> texts(QWidget& window);

} // namespace testsupport
