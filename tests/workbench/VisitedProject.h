#pragma once

#include "LanguageSupport.h"
#include "WidgetTestSupport.h"
#include "window/main/MainWindow.h"

#include <HostProject.h>

#include <QSet>
#include <QTableWidget>

#include <functional>

using testsupport::English;
using testsupport::find;
using testsupport::German;
using testsupport::setLanguage;
using testsupport::trigger;
using testsupport::whenModal;

using Visit = std::function<void(QWidget&)>;
/// Opens a window, or several one behind the other, lets each be looked at, and closes it.
using Open = std::function<void(const Visit&)>;

Q_DECLARE_METATYPE(Visit)
Q_DECLARE_METATYPE(Open)

/// Looks at the modal window that `act` opens, and closes it.
void visitModal(const Visit& visit, const std::function<void()>& act);

/// Looks at the menu that a right click on the widget opens, and closes it.
void visitMenu(const Visit& visit, QWidget* widget);

/// The sample building, and the ways to the windows that show it.
class VisitedProject
{
public:
    using WindowAct = std::function<void(workbench::MainWindow& window, const Visit&)>;
    using DesignAct = std::function<void(QWidget& dialog, QTableWidget& table, const Visit&)>;

    VKD_H_ZOBDoc* doc() { return m_project.doc(); }
    /// The main window with the project and its script.
    Open mainWindow(const WindowAct& act);
    /// The design dialog, with a row for remaining groups and a new one, which has no groups.
    Open design(const DesignAct& act);
    /// What belongs to the project and is in no language of the desktop.
    QSet<QString> texts();

    int language = English; ///< of the desktop while windows are opened

private:
    HostProject m_project{QStringLiteral("building")};
};
