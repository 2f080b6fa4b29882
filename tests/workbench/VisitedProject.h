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
using testsupport::whenProgress;

using Visit = std::function<void(QWidget&)>;
/// Opens one or more windows one after the other, calls a function for each window, and closes it.
using Open = std::function<void(const Visit&)>;

Q_DECLARE_METATYPE(Visit)
Q_DECLARE_METATYPE(Open)

/// Visits the modal window that `act` opens, and closes it.
void visitModal(const Visit& visit, const std::function<void()>& act);

/// Visits the menu that a right click on the widget opens, and closes it.
void visitMenu(const Visit& visit, QWidget* widget);

/// The sample building, with functions that open its windows.
class VisitedProject
{
public:
    using WindowAct = std::function<void(workbench::MainWindow& window, const Visit&)>;
    using DesignAct = std::function<void(QWidget& window, QTableWidget& table, const Visit&)>;

    VKD_H_ZOBDoc* doc() { return m_project.doc(); }
    /// Opens the main window with the project and its script.
    Open mainWindow(const WindowAct& act);
    /// Opens the design dock with a row for the remaining groups and a new row without groups.
    Open design(const DesignAct& act);
    /// Returns the texts that come from the project and do not depend on the language.
    QSet<QString> texts();

    int language = English; ///< the desktop's language while windows are opened

private:
    HostProject m_project{QStringLiteral("building")};
};
