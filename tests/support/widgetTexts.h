#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace testsupport {

/// Returns whether the widget is visible in this window and not hidden behind another dock tab.
bool isInView(const QWidget* widget, const QWidget& window);

/// Returns the window and its widgets for which isInView() is true.
QList<QWidget*> visibleWidgets(QWidget& window);

/// Shows each tab of the window and calls `act` for each of them. Calls `act` once if there are no
/// tabs.
void forEachTab(QWidget& window, const std::function<void()>& act);

/// Returns whether a widget is in a table cell, so that the cell determines its width.
bool isInCell(const QWidget* widget);

/// Returns the texts that the widget itself displays.
QStringList textsOf(const QWidget* widget);

/// Returns the texts whose mnemonics can be activated with Alt in the window.
QStringList mnemonicTextsOf(const QWidget* widget);

} // namespace testsupport
