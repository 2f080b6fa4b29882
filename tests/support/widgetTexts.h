#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace testsupport {

/// Whether it can be seen in the window, and not in another one nor behind the tab of a dock.
bool isInView(const QWidget* widget, const QWidget& window);

/// The window and all in it that is in view.
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
