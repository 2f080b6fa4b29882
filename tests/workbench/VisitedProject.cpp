#include "VisitedProject.h"

#include "window/records/RecordTableModel.h"
#include "window/script/ScriptView.h"

#include <vkd_dbo_groups.h>
#include <vkd_dbo_model.h>

#include <QContextMenuEvent>
#include <QPushButton>

using workbench::MainWindow;

/// Visits the modal window that `act` opens, and closes it.
void visitModal(const Visit& visit, const std::function<void()>& act)
{
    bool isSeen = false;
    whenModal([&](QWidget* modal) {
        isSeen = true;
        visit(*modal);
        modal->close();
    });
    act();
    if (!isSeen)
        qFatal("nothing opened");
}

/// Visits the menu that a right click on the widget opens, and closes it.
void visitMenu(const Visit& visit, QWidget* widget)
{
    bool isSeen = false;
    QTimer::singleShot(0, widget, [&] {
        QWidget* menu = QApplication::activePopupWidget();
        isSeen = menu;
        if (menu) {
            visit(*menu);
            menu->close();
        }
    });
    const QPoint place = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    if (!isSeen)
        qFatal("no menu");
}

Open VisitedProject::mainWindow(const WindowAct& act)
{
    return [this, act](const Visit& visit) {
        MainWindow window;
        window.show();
        QVERIFY(window.openProject(doc()->path()));
        QTRY_VERIFY(!find<workbench::ScriptView>(window, "ScriptText")->plainText().isEmpty());
        act(window, visit);
    };
}

Open VisitedProject::design(const DesignAct& act)
{
    return mainWindow([act](MainWindow& window, const Visit& visit) {
        trigger(window, "Design");
        find<QPushButton>(window, "btnNew")->click();
        act(window, *find<QTableWidget>(*find<QWidget>(window, "DesignDock"), "table"), visit);
    });
}

QSet<QString> VisitedProject::texts()
{
    const ZobHandle project = doc()->handle();
    QSet<QString> found{QStringLiteral("1 : g")};
    for (const vkd::dbo::GroupSummary& group : vkd::dbo::readGroups(project))
        found << group.title;
    for (const vkd::dbo::GroupSummary& group : vkd::dbo::readSecondaryGroups(project))
        found << group.title << group.name;
    const workbench::RecordTableModel words;
    for (int word = 0; word < words.rowCount(); ++word)
        found << words.headerData(word, Qt::Vertical, Qt::DisplayRole).toString();
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(project))
        found << loadCase.title
              << QStringLiteral("%1 : %2").arg(loadCase.number).arg(loadCase.title);
    return found;
}
