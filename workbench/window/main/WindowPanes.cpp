#include "window/main/WindowPanes.h"

#include "sheet/SheetPreview.h"
#include "window/design/DesignDock.h"
#include "window/design/PickBanner.h"
#include "window/groups/GroupList.h"
#include "window/groups/GroupPane.h"
#include "window/main/ChangeBar.h"
#include "window/main/DockShares.h"
#include "window/main/EditMenu.h"
#include "window/main/OutputRoom.h"
#include "window/main/PagesInTurn.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDock.h"
#include "window/outputs/OutputsDock.h"
#include "window/outputs/OutputsPane.h"
#include "window/records/RecordsPane.h"
#include "window/script/ScriptPane.h"
#include "window/start/StartScreen.h"
#include "window/support/HelpKey.h"
#include "window/support/resizeDocks.h"
#include "window/support/WindowSettings.h"

#include <AnimatorView.h>

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

namespace workbench {

namespace {
constexpr int StateVersion = 2;
const QString GeometryKey = QStringLiteral("geometry");
const QString StateKey = QStringLiteral("state");

QDockWidget* addDock(QMainWindow* window, Qt::DockWidgetArea area, QWidget* widget,
                     const char* name)
{
    auto dock = new QDockWidget(window);
    dock->setObjectName(QLatin1String(name));
    if (widget)
        dock->setWidget(widget);
    window->addDockWidget(area, dock);
    return dock;
}
} // namespace

WindowPanes::WindowPanes(const WindowActions& actions, QMainWindow* window)
    : QObject(window)
    , groupPane(new GroupPane(window))
    , groups(groupPane->groups)
    , news(new ChangeBar(actions.reload, actions.saveAs, window))
    , banner(new PickBanner(window))
    , view(new AnimatorView(ZobHandle(), window))
    , outputs(new OutputsPane(window))
    , script(new ScriptPane(actions.copyScript, actions.saveScript, window))
    , sheets(new SheetPreview(actions.exportSheets, window))
    , design(new DesignDock(window))
    , output(new OutputDock(window))
    , start(new StartScreen(
          {window, view, StateVersion, {actions.newFromSample, actions.newFromFile, actions.open}},
          this))
    , m_window(window)
{
    addCentre();
    addDocks(actions);
    resizeDocks();
    script->addToMenu({actions.output, actions.sheet});
    setHelpTopic(m_outputsDock, "GRAV/OUTPUTS");
    setHelpTopic(m_scriptDock, "GRAV/SCRIPT");
    setHelpTopic(m_sheetDock, "GRAV/SHEET");
    // isVisible() is also true for a dock that is covered by another dock.
    connect(m_sheetDock, &QDockWidget::visibilityChanged, this, &WindowPanes::sheetsVisibleChanged);
    window->installEventFilter(this);
}

void WindowPanes::addCentre()
{
    auto centre = new QWidget(m_window);
    auto layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(news);
    layout->addWidget(banner);
    layout->addWidget(view, 1);
    news->hide();
    banner->hide();
    view->setHovering(true);
    m_window->setCentralWidget(centre);
}

void WindowPanes::addDocks(const WindowActions& actions)
{
    m_window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_groupDock = addDock(m_window, Qt::LeftDockWidgetArea, groupPane, "GroupDock");
    m_outputsDock = new OutputsDock(outputs, m_window);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_outputsDock);
    m_scriptDock = addDock(m_window, Qt::RightDockWidgetArea, script, "ScriptDock");
    m_sheetDock = addDock(m_window, Qt::RightDockWidgetArea, sheets, "SheetDock");
    m_recordDock = addDock(m_window, Qt::RightDockWidgetArea, nullptr, "RecordDock");
    m_window->addDockWidget(Qt::BottomDockWidgetArea, design);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, output);
    for (PageDock* dock : pageDocks()) {
        dock->hide();
        dock->toggleViewAction()->setEnabled(false);
    }
    for (const QDockWidget* dock : std::initializer_list<const QDockWidget*>{
             m_groupDock, output, design, m_outputsDock, m_scriptDock, m_sheetDock, m_recordDock})
        actions.viewMenu->addAction(dock->toggleViewAction());
    connect(design, &QDockWidget::visibilityChanged, this, &WindowPanes::makeRoomForDesign);
    actions.projectMenu->addMenu(outputs->menu);
    m_window->splitDockWidget(m_outputsDock, m_scriptDock, Qt::Vertical);
    m_window->tabifyDockWidget(m_scriptDock, m_sheetDock);
    m_window->tabifyDockWidget(m_sheetDock, m_recordDock);
    m_scriptDock->raise();
    connect(output, &QDockWidget::visibilityChanged, this, &WindowPanes::placeOutput);
    const QWidgetList places{m_window->centralWidget(), m_groupDock, m_scriptDock, m_sheetDock,
                             m_recordDock};
    new EditMenu(actions.editMenu, QList<PageDock*>{m_outputsDock} + pageDocks(), places, this);
    new OutputRoom({m_window, output, m_groupDock, m_scriptDock, {news, banner}}, this);
    new PagesInTurn(m_window, output, design, banner, this);
}

/// The list of groups needs no additional space in a larger window, so its dock has no share.
void WindowPanes::resizeDocks()
{
    const QFontMetrics metrics = m_window->fontMetrics();
    const int letter = metrics.averageCharWidth();
    const int width = m_window->width();
    workbench::resizeDocks(m_window, {m_groupDock, m_scriptDock},
                           {qMin(48 * letter, width * 4 / 15), qMin(60 * letter, width / 3)},
                           Qt::Horizontal);
    auto shares = new DockShares(m_window);
    shares->add({m_scriptDock, m_sheetDock, m_recordDock}, Qt::Horizontal);
    shares->add({design}, Qt::Vertical);
}

/// The design page is wide and needs the height of a few rows. While its dock is closed, the script
/// uses the whole height. When the dock opens, the model becomes visible, because the page
/// highlights groups in it.
void WindowPanes::makeRoomForDesign()
{
    const bool isBelow = !design->isHidden() && !design->isFloating();
    m_window->setCorner(Qt::BottomRightCorner,
                        isBelow ? Qt::BottomDockWidgetArea : Qt::RightDockWidgetArea);
    if (std::exchange(m_isDesignBelow, isBelow) != isBelow && isBelow)
        m_groupDock->raise();
    if (!isBelow || std::exchange(m_isDesignPlaced, true))
        return; // from then on, the user determines the position and the height
    const int wanted = qMin(18 * m_window->fontMetrics().height(), m_window->height() * 2 / 5);
    if (design->height() < wanted)
        workbench::resizeDocks(m_window, {design}, {wanted}, Qt::Vertical);
}

/// Tabs the output page with the groups when it is first shown, because there is no room for both.
/// Doing this earlier would show a tab bar with a single tab.
void WindowPanes::placeOutput()
{
    if (output->isHidden() || std::exchange(m_isOutputPlaced, true))
        return;
    if (m_window->dockWidgetArea(output) == m_window->dockWidgetArea(m_groupDock) &&
        m_window->tabifiedDockWidgets(output).isEmpty() && !output->isFloating())
        m_window->tabifyDockWidget(m_groupDock, output);
}

void WindowPanes::setTexts()
{
    view->setAccessibleName(tr("Model"));
    m_groupDock->setWindowTitle(tr("Groups"));
    groupPane->setTexts();
    m_outputsDock->setTitle(tr("Outputs"));
    outputs->setTexts();
    m_scriptDock->setWindowTitle(tr("Script"));
    m_sheetDock->setWindowTitle(tr("Sheet"));
    m_recordDock->setWindowTitle(tr("Records"));
    design->setTexts();
    output->setTexts();
    nameTabBars();
}

void WindowPanes::setProjectOpen(bool isOpen)
{
    start->setShown(!isOpen);
    for (const PageDock* dock : pageDocks())
        dock->toggleViewAction()->setEnabled(isOpen);
}

void WindowPanes::nameTabBars()
{
    for (auto bar : m_window->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly))
        bar->setAccessibleName(tr("Panels"));
}

/// The window creates the tab bar of tabbed docks when it needs one.
bool WindowPanes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished &&
        qobject_cast<QTabBar*>(static_cast<QChildEvent*>(event)->child()))
        nameTabBars();
    return QObject::eventFilter(watched, event);
}

RecordsPane* WindowPanes::records()
{
    if (!m_records) {
        m_records = new RecordsPane(m_recordDock);
        m_recordDock->setWidget(m_records);
        if (m_records->window() == m_window) // not in a floating dock
            QWidget::setTabOrder(view, m_records);
    }
    return m_records;
}

void WindowPanes::showSheets()
{
    m_sheetDock->show();
    m_sheetDock->raise();
    sheets->setFocus();
}

QList<PageDock*> WindowPanes::pageDocks() const
{
    return {design, output};
}

void WindowPanes::restoreGeometry()
{
    const WindowSettings settings;
    m_window->restoreGeometry(settings.value(GeometryKey).toByteArray());
    m_window->restoreState(settings.value(StateKey).toByteArray(), StateVersion);
    for (PageDock* dock : pageDocks())
        dock->hide(); // stays hidden until a project is open and the user opens the dock
}

void WindowPanes::saveGeometry() const
{
    WindowSettings settings;
    settings.setValue(GeometryKey, m_window->saveGeometry());
    settings.setValue(StateKey, start->dockState());
}

} // namespace workbench
