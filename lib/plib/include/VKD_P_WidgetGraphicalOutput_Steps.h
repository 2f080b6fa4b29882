#pragma once

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// The object name of a child object of VKD_P_WidgetGraphicalOutput that records undo steps. The
/// actions "undo" and "redo" are in the page's actions(); a host may add them to its own widgets
/// and menus. Hosts find the object with findChild<QObject*>() and use it through its meta-object.
///
/// A step restores the settings, the view and the checked plots, but not a camera that the user has
/// rotated. Calls to the page's functions that change the load cases, the content or the plots
/// clear the history, unless they belong to a step of the host. Such a step can contain a state of
/// the host, for example the load cases that the host offers.
///
/// Methods:
/// - `void begin()` begins a step of the host. Steps can be nested.
/// - `void end(QStringList name, QString state)` ends the step and adds it to the history if
///   anything has changed. `name` consists of the context and the source text of a translation and
///   an optional argument that replaces "%1"; the page translates it when it is shown. A name that
///   is a QString is not translated. `state` is the state of the host after the step.
/// - `void restart(QString state)` clears the history. `state` is the current state of the host.
/// - `void amend(QStringList name, QString state)` adds a change to the state of the host to the
///   step of the user's last action. If that action did not change the page, adds a step with this
///   name. A host uses this method if an action of the page, for example Default Settings, also
///   changes the state of the host.
/// - `QByteArray steps()` returns the history for a page of the same process that replaces this
///   page, for example after a language change. Without steps, returns an empty array.
/// - `bool setSteps(QByteArray steps)` replaces the history with that of another page. If the state
///   of the host differs, `hostStateRestored()` is emitted. If the settings or the checked plots of
///   the pages differ, does nothing and returns false.
///
/// Signals:
/// - `hostStateRestored(QString)` is emitted during undo and redo if the state of the host differs.
///   The slot changes the load cases and the content of the page; afterwards, the page restores its
///   settings and plots.
/// - `stepped()` is emitted after each step, after undo and redo, and after the history is cleared.
constexpr char StepsObject[] = "steps";

} // namespace widgetgraphicaloutput
} // namespace plib
} // namespace vkd
