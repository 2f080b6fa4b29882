#include "window/main/MainWindow.h"

#include "cli/PlatformLog.h"
#include "project/ProjectWatch.h"
#include "sheet/SheetPreview.h"
#include "window/design/DesignDialog.h"
#include "window/design/PickBanner.h"
#include "window/main/ChangeBar.h"
#include "window/main/DockShares.h"
#include "window/main/GroupList.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDialog.h"
#include "window/output/ScriptPane.h"
#include "window/support/askAboutNewer.h"
#include "window/support/HelpKey.h"
#include "window/support/projectTrouble.h"
#include "window/support/waitForStore.h"
#include "window/support/WindowSettings.h"
#include "window/support/withinScreen.h"
#include "window/textoutput/TextOutputDialog.h"

#include <AnimatorView.h>
#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_MessageBox.h>
#include <ZobSnapshot.h>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

namespace workbench {

namespace {
constexpr int StateVersion = 1;
const QString GeometryKey = QStringLiteral("geometry");
const QString StateKey = QStringLiteral("state");
} // namespace

MainWindow::MainWindow(MakeProject makeProject, QWidget* parent)
    : QMainWindow(parent)
    , m_makeProject(std::move(makeProject))
    , m_actions(new WindowActions(this))
    , m_groups(new GroupList(this))
    , m_news(new ChangeBar(m_actions->reload, m_actions->saveAs, this))
    , m_banner(new PickBanner(this))
    , m_view(new AnimatorView(0, this))
    , m_script(new ScriptPane(m_actions->copyScript, m_actions->saveScript, this))
    , m_sheet(new SheetPreview(m_actions->exportSheets, this))
    , m_contents(new QLabel(this))
    , m_watch(new ProjectWatch(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setAcceptDrops(true);
    resizeWithinScreen(this, {1280, 800});
    addCentre();
    addDocks();
    statusBar()->addPermanentWidget(m_contents);
    connectActions();
    connectPanes();
    connectHelp();
    setTexts();
    const WindowSettings settings;
    m_script->setEnglish(settings.englishKeywords());
    m_actions->setRecentFiles(settings.recentFiles());
    enableActions();
    showNoScript();
    restoreGeometry(settings.value(GeometryKey).toByteArray());
    restoreState(settings.value(StateKey).toByteArray(), StateVersion);
}

/// The docks tell of being hidden once more when the parts of the window have gone.
MainWindow::~MainWindow()
{
    m_sheetDock->disconnect(this);
}

void MainWindow::addCentre()
{
    auto centre = new QWidget(this);
    auto layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_news);
    layout->addWidget(m_banner);
    layout->addWidget(m_view, 1);
    m_news->hide();
    m_banner->hide();
    setCentralWidget(centre);
}

void MainWindow::addDocks()
{
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_groupDock = addDock(Qt::LeftDockWidgetArea, m_groups, "GroupDock");
    m_scriptDock = addDock(Qt::RightDockWidgetArea, m_script, "ScriptDock");
    m_sheetDock = addDock(Qt::RightDockWidgetArea, m_sheet, "SheetDock");
    tabifyDockWidget(m_scriptDock, m_sheetDock);
    m_scriptDock->raise();
    m_recordDock = addDock(Qt::BottomDockWidgetArea, nullptr, "RecordDock");
    const int letter = fontMetrics().averageCharWidth();
    resizeDocks({m_groupDock, m_scriptDock},
                {qMin(45 * letter, width() / 4), qMin(60 * letter, width() / 3)}, Qt::Horizontal);
    resizeDocks({m_recordDock}, {10 * fontMetrics().height()}, Qt::Vertical);
    auto shares = new DockShares(this); // the list of groups needs no more room than it has
    shares->add({m_scriptDock, m_sheetDock}, Qt::Horizontal);
    shares->add({m_recordDock}, Qt::Vertical);
}

QDockWidget* MainWindow::addDock(Qt::DockWidgetArea area, QWidget* widget, const char* name)
{
    auto dock = new QDockWidget(this);
    dock->setObjectName(QLatin1String(name));
    if (widget)
        dock->setWidget(widget);
    addDockWidget(area, dock);
    m_actions->viewMenu->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::connectActions()
{
    const auto on = [this](const QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    for (const QAction* sample : qAsConst(m_actions->newFromSample))
        on(sample, [this, sample] { newProject(sample->data().toString()); });
    for (const QAction* view : qAsConst(m_actions->views))
        on(view, [this, view] {
            m_view->slotViewControl(AnimatorViewControl(view->data().toInt()), 0.0);
        });
    on(m_actions->newFromFile, &MainWindow::chooseModel);
    on(m_actions->open, &MainWindow::chooseProject);
    on(m_actions->reload, &MainWindow::reload);
    on(m_actions->saveAs, &MainWindow::saveAs);
    on(m_actions->copyScript, &MainWindow::copyScript);
    on(m_actions->saveScript, &MainWindow::saveScript);
    on(m_actions->exportSheets, &MainWindow::exportSheet);
    on(m_actions->quit, &MainWindow::close);
    on(m_actions->design, &MainWindow::editDesign);
    on(m_actions->output, &MainWindow::showOutput);
    on(m_actions->textOutput, &MainWindow::showTextOutput);
    on(m_actions->sheet, &MainWindow::showSheet);
    on(m_actions->german, [this] { setLanguage(0); });
    on(m_actions->english, [this] { setLanguage(1); });
    on(m_actions->about, &MainWindow::showAbout);
    connect(m_actions->recentMenu, &QMenu::triggered, this, [this](const QAction* file) {
        const QString path = file->data().toString(); // the menu is made anew meanwhile
        if (mayLeaveProject())
            openProject(path);
    });
}

void MainWindow::connectPanes()
{
    connect(m_groups, &GroupList::groupPointed, m_view, &AnimatorView::setHighlightedGroup);
    connect(m_groups, &GroupList::groupChosen, this, &MainWindow::chooseGroup);
    m_view->setHovering(true);
    connect(m_view, &AnimatorView::groupHovered, m_groups, &GroupList::setMarkedGroup);
    connect(m_view, &AnimatorView::pickedGroupsChanged, this, &MainWindow::showPicked);
    connect(m_banner, &PickBanner::done, this, &MainWindow::takePicked);
    connect(m_banner, &PickBanner::cancelled, this, [this] {
        stopPicking();
        runDesign();
    });
    connect(m_script, &ScriptPane::languageChosen, this, &MainWindow::setKeywords);
    connect(m_watch, &ProjectWatch::noticed, this, &MainWindow::showNews);
    // Behind another dock it still counts as visible to Qt, and is none the less not to be seen.
    connect(m_sheetDock, &QDockWidget::visibilityChanged, this, [this](bool seen) {
        m_isSheetSeen = seen;
        refreshSheet();
    });
}

void MainWindow::connectHelp()
{
    setHelpTopic(this, "MERDAN/PARA");
    setHelpTopic(m_scriptDock, "GRAV/SCRIPT");
    setHelpTopic(m_sheetDock, "GRAV/SHEET");
    const auto help = [this](QWidget* caller) { showHelp(helpTopic(caller), caller); };
    connect(new HelpKey(this), &HelpKey::helpWanted, this, help);
    connect(m_actions->help, &QAction::triggered, this,
            [this, help] { help(focusWidget() ? focusWidget() : this); });
    for (const QAction* book : qAsConst(m_actions->books))
        connect(book, &QAction::triggered, this,
                [this, book] { showHelp(book->data().toString(), this); });
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_watch->look();
        QTimer::singleShot(0, this, &MainWindow::showNews); // what a dialog was in the way of
    }
}

/// Docks that lie on each other get a bar of tabs whenever there is none as yet.
void MainWindow::childEvent(QChildEvent* event)
{
    QMainWindow::childEvent(event);
    if (event->type() == QEvent::ChildPolished && qobject_cast<QTabBar*>(event->child()))
        nameTabBars();
}

void MainWindow::setTexts()
{
    m_actions->setTexts();
    m_view->setAccessibleName(tr("Model"));
    m_groupDock->setWindowTitle(tr("Groups"));
    m_scriptDock->setWindowTitle(tr("Script"));
    m_sheetDock->setWindowTitle(tr("Sheet"));
    m_recordDock->setWindowTitle(tr("Records"));
    nameTabBars();
    setTitle();
    showContents();
}

void MainWindow::nameTabBars()
{
    for (auto bar : findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly))
        bar->setAccessibleName(tr("Panels"));
}

void MainWindow::setTitle()
{
    const QString program = tr("Workbench");
    setWindowTitle(
        m_document
            ? QStringLiteral("%1[*] - %2").arg(QFileInfo(m_document->path()).fileName(), program)
            : program);
}

void MainWindow::showContents()
{
    m_contents->setText(m_document ? tr("Groups: %1, load cases: %2")
                                         .arg(m_groups->topLevelItemCount())
                                         .arg(vkd::dbo::readLoadCases(index()).size())
                                   : tr("No project"));
}

void MainWindow::say(const QString& text)
{
    statusBar()->showMessage(text);
}

void MainWindow::complain(const QString& text)
{
    PlatformLog::take(); // the message says it already
    say(text.section(QLatin1Char('\n'), 0, 0));
    VKD_QT_MessageBox::warning(this, tr("Workbench"), text);
}

void MainWindow::complainOfWriting(const QString& path, const QString& reason)
{
    const QString sentence = tr("The file %1 cannot be written.");
    complain(sentence.arg(QDir::toNativeSeparators(path)) + QLatin1Char('\n') + reason);
}

bool MainWindow::succeeds(cd_error_t status, const QString& path, const QString& sentence)
{
    if (status == VKD_ZOB_CANCELLED)
        say(tr("Cancelled."));
    else if (status != VKD_ZOB_OK)
        complain(sentence.arg(QDir::toNativeSeparators(path)) + QLatin1Char('\n') +
                 projectReason(path, status));
    return status == VKD_ZOB_OK;
}

bool MainWindow::withProject(const std::function<cd_error_t()>& work, const QString& sentence)
{
    const QString path = m_document->path();
    return succeeds(waitForStore(this, path, work), path, sentence);
}

MainWindow::Stored MainWindow::storePart(const std::function<cd_error_t(SeenPart::Newer)>& store,
                                         const QString& sentence)
{
    const QString path = m_document->path();
    cd_error_t status = waitForStore(this, path, [&store] { return store(SeenPart::Newer::Keep); });
    if (status == PartChanged) {
        switch (askAboutNewer(this)) {
        case NewerAnswer::Reload: return Stored::Reload;
        case NewerAnswer::GoBack: return Stored::No;
        case NewerAnswer::Overwrite:
            status =
                waitForStore(this, path, [&store] { return store(SeenPart::Newer::Overwrite); });
        }
    }
    return succeeds(status, path, sentence) ? Stored::Yes : Stored::No;
}

bool MainWindow::mayLeave(const QString& question, const std::function<bool()>& store)
{
    const int answer =
        VKD_QT_MessageBox::warning(this, tr("Workbench"), question, QMessageBox::Save,
                                   QMessageBox::Discard, QMessageBox::Cancel);
    return answer == QMessageBox::Save ? store() : answer == QMessageBox::Discard;
}

/// Whether all that the window reads next can be read: asked once, because each of many readings
/// would wait for another program on its own.
bool MainWindow::canRead()
{
    return withProject([this] { return ZobSnapshot(index()).status().code; },
                       tr("The file %1 cannot be read."));
}

void MainWindow::enableActions()
{
    m_actions->enable(bool(m_document), m_view->isPicking(),
                      m_watch->file() == ProjectWatch::File::Missing);
}

void MainWindow::saveWindowState() const
{
    WindowSettings settings;
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(StateKey, saveState(StateVersion));
}

int MainWindow::index() const
{
    return m_document ? m_document->index() : 0;
}

QString MainWindow::folder() const
{
    return m_document ? QFileInfo(m_document->path()).absolutePath() : QDir::currentPath();
}

} // namespace workbench
