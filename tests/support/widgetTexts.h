#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace testsupport {

/// The window and all in it that is visible, apart from other windows.
QList<QWidget*> visibleWidgets(QWidget& window);

/// Runs `act` for each tab of the window in front, once without tabs.
void forEachTab(QWidget& window, const std::function<void()>& act);

/// Whether a widget stands over a cell, whose width it has to do with.
bool isInCell(const QWidget* widget);

/// What the widget itself writes on the screen.
QStringList textsOf(const QWidget* widget);

/// Those of the texts whose mnemonics Alt reaches in the window.
QStringList mnemonicTextsOf(const QWidget* widget);

} // namespace testsupport
