#include "window/main/MainWindow.h"

#include "sheet/SheetPreview.h"
#include "window/design/DesignDock.h"
#include "window/design/DesignEditor.h"
#include "window/design/RowsInView.h"
#include "window/files/FileDrop.h"
#include "window/files/SlowWork.h"
#include "window/groups/GroupList.h"
#include "window/groups/GroupMenu.h"
#include "window/main/ChangeBar.h"
#include "window/main/FileCommands.h"
#include "window/main/switchLanguage.h"
#include "window/main/WindowActions.h"
#include "window/main/WindowHelp.h"
#include "window/main/WindowPanes.h"
#include "window/output/OutputEditor.h"
#include "window/output/OutputScript.h"
#include "window/outputs/OutputCommands.h"
#include "window/records/RecordsPane.h"
#include "window/start/StartScreen.h"
#include "window/support/isCellEditorOpen.h"
#include "window/support/withinScreen.h"
#include "window/textoutput/TextOutputEditor.h"

#include <AnimatorView.h>
#include <vkd_dbo_model.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>

namespace workbench {

namespace {
constexpr int PopupMs = 200; // interval between checks for an open menu
} // namespace

MainWindow::MainWindow(const MakeProject& makeProject, QWidget* parent)
    : QMainWindow(parent)
    , m_actions(new WindowActions(this))
    , m_contents(new QLabel(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    resizeWithinScreen(this, {1280, 800});
    m_panes = std::make_unique<WindowPanes>(*m_actions, this);
    statusBar()->addPermanentWidget(m_contents);
    createEditors(makeProject);
    connectActions();
    connectPanes();
    connectProject();
    new WindowHelp(&m_messages, *m_actions);
    m_outputCommands = std::make_unique<OutputCommands>(
        OutputParts{&m_project, m_outputEditor.get(), m_outputScript.get(), m_panes->outputs,
                    m_panes->sheets, &m_messages});
    setTexts();
    enableActions();
    m_outputScript->clear();
    m_panes->restoreGeometry();
}

MainWindow::~MainWindow() = default;

void MainWindow::createEditors(const MakeProject& makeProject)
{
    const QList<QAction*> actions = m_actions->besideDialogs();
    const RowsInView::Widgets rows{m_panes->view, m_panes->groups, m_panes->banner,
                                   m_panes->design};
    m_rowsInView = std::make_unique<RowsInView>(rows, &m_messages);
    m_groupMenu = new GroupMenu(m_panes->view, m_panes->groups, m_rowsInView.get());
    m_designEditor =
        std::make_unique<DesignEditor>(&m_project, &m_access, &m_messages, m_panes->design);
    m_outputEditor =
        std::make_unique<OutputEditor>(&m_project, &m_access, &m_messages, m_panes->output);
    m_outputScript = std::make_unique<OutputScript>(&m_project, m_outputEditor.get(), &m_messages,
                                                    m_panes->script, m_panes->sheets);
    m_textOutputEditor =
        std::make_unique<TextOutputEditor>(&m_project, &m_access, &m_messages, actions);
    const ProjectParts parts{&m_project,
                             &m_messages,
                             m_panes->view,
                             m_designEditor.get(),
                             m_outputEditor.get(),
                             m_outputScript.get(),
                             m_textOutputEditor.get(),
                             [this] { return showProject(); }};
    m_files = std::make_unique<FileCommands>(parts, makeProject, m_actions);
    m_designEditor->setSaveAs([this] { return m_files->saveAs(); });
}

void MainWindow::connectActions()
{
    const auto on = [this](const QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    for (const QAction* view : qAsConst(m_actions->views))
        on(view, [this, view] {
            m_panes->view->slotViewControl(AnimatorViewControl(view->data().toInt()), 0.0);
        });
    on(m_actions->copyScript, [this] { m_outputScript->copy(); });
    on(m_actions->saveScript, [this] { m_outputScript->save(); });
    on(m_actions->exportSheets, [this] { m_outputScript->exportSheets(); });
    on(m_actions->quit, &MainWindow::close);
    on(m_actions->design, [this] { m_designEditor->edit(); });
    on(m_actions->output, [this] { m_outputEditor->edit(); });
    on(m_actions->textOutput, [this] { m_textOutputEditor->show(); });
    on(m_actions->sheet, [this] { m_panes->showSheets(); });
    on(m_actions->german, [this] { setLanguage(vkd::Language::German); });
    on(m_actions->english, [this] { setLanguage(vkd::Language::English); });
}

void MainWindow::connectPanes()
{
    connect(m_panes->groups, &GroupList::groupPointed, m_panes->view,
            &AnimatorView::setHighlightedGroup);
    connect(m_panes->view, &AnimatorView::groupHovered, m_panes->groups,
            &GroupList::setMarkedGroup);
    connect(m_panes.get(), &WindowPanes::sheetsVisibleChanged, m_outputScript.get(),
            &OutputScript::setSheetsVisible);
    auto drop = new FileDrop(this, [] { return !QApplication::activeModalWidget(); });
    connect(drop, &FileDrop::dropped, m_files.get(), &FileCommands::openFile);
    connect(m_panes->start, &StartScreen::projectChosen, m_files.get(), &FileCommands::openFile);
}

void MainWindow::connectProject()
{
    connect(&m_project, &OpenProject::changedOutside, this, &MainWindow::showNews);
    connect(m_files.get(), &FileCommands::replaced, this, &MainWindow::showReplaced);
    connect(m_designEditor.get(), &DesignEditor::stored, this, &MainWindow::showRecords);
    connect(m_designEditor.get(), &DesignEditor::modified, this, &MainWindow::showModified);
    connect(m_designEditor.get(), &DesignEditor::pageChanged, m_rowsInView.get(),
            &RowsInView::pageChanged);
    connect(m_outputEditor.get(), &OutputEditor::modified, this, &MainWindow::showModified);
    connect(m_textOutputEditor.get(), &TextOutputEditor::modified, this, &MainWindow::showModified);
    connect(m_outputScript.get(), &OutputScript::refreshed, this, [this](bool isEmpty) {
        showModified();
        m_actions->setHasScript(!isEmpty);
    });
}

bool MainWindow::openProject(const QString& path)
{
    return m_files->open(path);
}

void MainWindow::openAfterPainting(const QString& path)
{
    m_panes->start->setShown(path.isEmpty());
    m_files->openAfterPainting(path);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_project.check();
        QTimer::singleShot(0, this, &MainWindow::showNews); // possibly delayed by a modal dialog
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files->mayLeave())
        return event->ignore();
    m_outputEditor->close();
    m_textOutputEditor->close();
    m_panes->saveGeometry();
    QMainWindow::closeEvent(event);
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    m_files->painted();
}

void MainWindow::setTexts()
{
    m_actions->setTexts();
    m_panes->setTexts();
    m_rowsInView->setTexts();
    setTitle();
    showContents();
}

void MainWindow::setTitle()
{
    const QString program = tr("Workbench");
    const QString file = QFileInfo(m_project.path()).fileName();
    setWindowTitle(m_project.isOpen() ? QStringLiteral("%1[*] - %2").arg(file, program) : program);
}

void MainWindow::enableActions()
{
    m_actions->enable(m_project.isOpen(), m_project.file() == ProjectWatch::File::Missing);
}

void MainWindow::showReplaced()
{
    m_panes->news->reset();
    m_panes->setProjectOpen(m_project.isOpen());
    enableActions();
    setWindowModified(false);
    setTitle();
    if (!m_project.isOpen())
        showProject();
}

/// Shows the project, if there is one, except for the model. The script is shown last, because
/// creating its page takes longest. Returns whether all data was read.
bool MainWindow::showProject()
{
    const WaitCursor cursor;
    const VkdStatus groups = m_panes->groups->setProject(m_project.handle());
    m_groupMenu->showAll();
    m_rowsInView->groupsChanged();
    const bool areRecordsRead = showRecords();
    m_outputScript->clear();
    m_panes->sheets->setProject(m_project.handle(), m_project.name());
    const bool areLoadCasesRead = showContents();
    QTimer::singleShot(0, m_outputScript.get(), &OutputScript::refresh);
    return groups.isOk() && areRecordsRead && areLoadCasesRead;
}

/// Returns whether the load cases were read.
bool MainWindow::showContents()
{
    VkdStatus status;
    m_contents->setText(m_project.isOpen()
                            ? tr("Groups: %1, load cases: %2")
                                  .arg(m_panes->groups->topLevelItemCount())
                                  .arg(vkd::dbo::readLoadCases(m_project.handle(), &status).size())
                            : tr("No project"));
    return status.isOk();
}

/// If the project cannot be read at the moment, the previous records are preserved.
bool MainWindow::showRecords()
{
    return (!m_project.isOpen() || m_access.canRead()) &&
           m_panes->records()->setProject(m_project.handle());
}

/// Does nothing while a modal dialog is open, because the dialog may be using data that would
/// change. The window calls this function again when it becomes active. An open menu or editor
/// delays the function, because it would be closed.
void MainWindow::showNews()
{
    if (!m_project.isOpen() || QApplication::activeModalWidget())
        return;
    if (QApplication::activePopupWidget() || isCellEditorOpen(this))
        return QTimer::singleShot(PopupMs, this, &MainWindow::showNews);
    enableActions();
    const bool isChanged = m_project.isChangedByOthers();
    const bool areRowsOlder = isChanged && !followOthers();
    m_panes->news->report(isChanged, m_project.file(), areRowsOlder);
}

/// Reloads the records, the rows and the script, except for rows that the user has changed and
/// selections that are displayed or that the user has changed. The Reload action also loads these
/// selections. Returns false if the user's rows are older than those in the project.
bool MainWindow::followOthers()
{
    if (m_project.readStatus() != VKD_ZOB_OK)
        return true;
    m_project.markFollowed();
    showRecords();
    m_outputEditor->followOthers();
    return m_designEditor->followOthers();
}

void MainWindow::showModified()
{
    const bool isOutputChanged = m_outputEditor->markChanges();
    setWindowModified(isOutputChanged || m_designEditor->isChanged() ||
                      m_textOutputEditor->isChanged());
    if (!m_designEditor->isChanged())
        m_panes->news->setRowsCurrent();
}

/// The pages are created again, so the project must be readable.
void MainWindow::setLanguage(vkd::Language language)
{
    if (vkd::desktopLanguage() == language)
        return;
    if (m_project.isOpen() && (!m_designEditor->finishEditing() || !m_access.canRead()))
        return m_actions->setTexts();
    switchLanguage(language,
                   {m_designEditor.get(), m_outputEditor.get(), m_textOutputEditor.get()});
    m_outputScript->refresh();
    m_messages.say(tr("The language is now English."));
}

} // namespace workbench
