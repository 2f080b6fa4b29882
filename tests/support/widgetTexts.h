#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace testsupport {

/// Returns whether the widget is visible in this window, and not in another one or on a dock tab
/// that is not current.
bool isInView(const QWidget* widget, const QWidget& window);

/// Returns the window and all visible widgets in it.
QList<QWidget*> visibleWidgets(QWidget& window);

/// Calls `act` for each tab of the active window, or once if it has no tabs.
void forEachTab(QWidget& window, const std::function<void()>& act);

/// Returns whether a widget is placed over a cell, which determines its width.
bool isInCell(const QWidget* widget);

/// Returns the texts that the widget itself paints.
QStringList textsOf(const QWidget* widget);

/// Returns the texts whose mnemonics work with Alt in the window.
QStringList mnemonicTextsOf(const QWidget* widget);

} // namespace testsupport
