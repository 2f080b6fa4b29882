#include "window/main/WindowActions.h"

#include "window/start/SampleModel.h"

#include <AnimatorViewControl.h>
#include <vkd_language.h>
#include <vkd_qt_icon_named.h>

#include <QActionGroup>
#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace workbench {

namespace {
struct View
{
    AnimatorViewControl control;
    const char* text;
    const char* plane; ///< coordinate plane for the tool bar; null if the view has none
    const char* icon;
};

constexpr View Views[] = {
    {AnimatorShowAll, QT_TRANSLATE_NOOP("workbench::WindowActions", "Show &All"), nullptr, "all"},
    {AnimatorStandardView, QT_TRANSLATE_NOOP("workbench::WindowActions", "&3D Standard"), nullptr,
     "3d"},
    {AnimatorViewXY, QT_TRANSLATE_NOOP("workbench::WindowActions", "View X/&Y"), "X/Y", "xy"},
    {AnimatorViewXZ, QT_TRANSLATE_NOOP("workbench::WindowActions", "View X/&Z"), "X/Z", "xz"},
    {AnimatorViewYZ, QT_TRANSLATE_NOOP("workbench::WindowActions", "Vie&w Y/Z"), "Y/Z", "yz"},
};

struct Book
{
    const char* name;
    const char* topic;
    const char* text;
};

constexpr Book Books[] = {
    {"DesignHelp", "MERDAN/PARA",
     QT_TRANSLATE_NOOP("workbench::WindowActions", "&Design Parameters")},
    {"OutputHelp", "GRAV/OUTPUT",
     QT_TRANSLATE_NOOP("workbench::WindowActions", "&Graphical Output")},
    {"TextOutputHelp", "TEXT/OUTPUT",
     QT_TRANSLATE_NOOP("workbench::WindowActions", "&Text Output")},
};
} // namespace

WindowActions::WindowActions(QMainWindow* window)
    : QObject(window)
    , newFromFile(add("NewFromFile"))
    , open(add("Open"))
    , reload(add("Reload"))
    , save(add("Save"))
    , saveAs(add("SaveAs"))
    , close(add("CloseProject"))
    , copyScript(add("CopyScriptAction"))
    , saveScript(add("SaveScriptAction"))
    , exportSheets(add("ExportSheetsAction"))
    , quit(add("Quit"))
    , design(add("Design"))
    , output(add("Output"))
    , textOutput(add("TextOutput"))
    , sheet(add("SheetPreviewAction"))
    , german(add("German"))
    , english(add("English"))
    , help(add("Help"))
    , about(add("About"))
{
    addSamples();
    addViews();
    addBooks();
    auto languages = new QActionGroup(this);
    for (QAction* language : {german, english}) {
        language->setCheckable(true);
        languages->addAction(language);
    }
    // These icons follow the palette and need no icon files, which would slow down startup.
    open->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/open")));
    save->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/save")));
    design->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/reinforcement")));
    output->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/plot")));
    textOutput->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/text")));
    addMenus(window);
    addToolBar(window);
    setShortcuts();
    setTexts();
}

QAction* WindowActions::add(const char* name)
{
    auto action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    return action;
}

void WindowActions::addSamples()
{
    const QVector<SampleModel> samples = SampleModel::installed();
    for (const SampleModel& sample : samples) {
        QAction* action = add("NewFromSample");
        action->setData(sample.name);
        newFromSample << action;
    }
}

void WindowActions::addViews()
{
    for (const View& view : Views) {
        QAction* action = add("View");
        action->setData(int(view.control));
        if (view.plane)
            action->setIconText(QLatin1String(view.plane));
        action->setIcon(
            vkd::qt::icon(QStringLiteral(":/icon/program/view_%1").arg(QLatin1String(view.icon))));
        views << action;
    }
}

void WindowActions::addBooks()
{
    for (const Book& book : Books) {
        QAction* action = add(book.name);
        action->setData(QLatin1String(book.topic));
        books << action;
    }
}

void WindowActions::addMenus(QMainWindow* window)
{
    QMenuBar* bar = window->menuBar();
    m_fileMenu = bar->addMenu(QString());
    m_newMenu = m_fileMenu->addMenu(QString());
    m_newMenu->addActions(newFromSample.toList());
    m_newMenu->addSeparator();
    m_newMenu->addAction(newFromFile);
    m_fileMenu->addAction(open);
    recentMenu = m_fileMenu->addMenu(QString());
    m_fileMenu->addActions({reload, save, saveAs, close});
    m_fileMenu->addSeparator();
    m_fileMenu->addActions({copyScript, saveScript, exportSheets});
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(quit);
    editMenu = bar->addMenu(QString());
    editMenu->setObjectName(QStringLiteral("EditMenu"));
    viewMenu = bar->addMenu(QString());
    viewMenu->addActions(views.toList());
    viewMenu->addSeparator();
    projectMenu = bar->addMenu(QString());
    projectMenu->addActions({design, output, textOutput, sheet});
    m_languageMenu = bar->addMenu(QString());
    m_languageMenu->addActions({german, english});
    m_helpMenu = bar->addMenu(QString());
    m_helpMenu->addAction(help);
    m_helpMenu->addSeparator();
    m_helpMenu->addActions(books.toList());
    m_helpMenu->addSeparator();
    m_helpMenu->addAction(about);
}

void WindowActions::addToolBar(QMainWindow* window)
{
    m_toolBar = window->addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("ToolBar"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->addActions({open, save});
    m_toolBar->addSeparator();
    m_toolBar->addActions({design, output, textOutput});
    m_toolBar->addSeparator();
    m_toolBar->addActions(views.toList());
}

void WindowActions::setShortcuts()
{
    newFromFile->setShortcut(QKeySequence::New);
    open->setShortcut(QKeySequence::Open);
    reload->setShortcut(QKeySequence::Refresh);
    save->setShortcut(QKeySequence::Save);
    saveAs->setShortcut(int(Qt::CTRL) | Qt::SHIFT | Qt::Key_S);
    close->setShortcut(int(Qt::CTRL) | Qt::Key_W);
    copyScript->setShortcut(int(Qt::CTRL) | Qt::SHIFT | Qt::Key_C);
    saveScript->setShortcut(int(Qt::CTRL) | Qt::Key_E);
    quit->setShortcut(int(Qt::CTRL) | Qt::Key_Q);
    design->setShortcut(int(Qt::CTRL) | Qt::Key_D);
    output->setShortcut(int(Qt::CTRL) | Qt::Key_G);
    textOutput->setShortcut(int(Qt::CTRL) | Qt::Key_T);
    sheet->setShortcut(int(Qt::CTRL) | Qt::SHIFT | Qt::Key_P);
    exportSheets->setShortcut(int(Qt::CTRL) | Qt::SHIFT | Qt::Key_E);
    help->setShortcut(QKeySequence::HelpContents);
    for (int i = 0; i < views.size(); ++i)
        views[i]->setShortcut(QStringLiteral("Ctrl+%1").arg(i));
}

QList<QAction*> WindowActions::besideDialogs() const
{
    return {save, design, output, textOutput, sheet, copyScript, saveScript, exportSheets};
}

void WindowActions::setTexts()
{
    m_fileMenu->setTitle(tr("&File"));
    m_newMenu->setTitle(tr("&New from Model"));
    recentMenu->setTitle(tr("Open &Recent"));
    editMenu->setTitle(tr("&Edit"));
    viewMenu->setTitle(tr("&View"));
    projectMenu->setTitle(tr("&Project"));
    m_languageMenu->setTitle(tr("&Language"));
    m_helpMenu->setTitle(tr("&Help"));
    m_toolBar->setWindowTitle(tr("Tool Bar"));
    const QVector<SampleModel> samples = SampleModel::installed();
    for (int i = 0; i < samples.size(); ++i) {
        newFromSample[i]->setText(samples[i].title);
        newFromSample[i]->setToolTip(samples[i].description);
    }
    for (int i = 0; i < views.size(); ++i)
        views[i]->setText(tr(Views[i].text));
    newFromFile->setText(tr("&Model File..."));
    newFromFile->setToolTip(tr("Creates a project from a model file"));
    open->setText(tr("&Open..."));
    reload->setText(tr("Re&load"));
    save->setText(tr("&Save"));
    save->setToolTip(tr("Stores all unsaved changes in the project file"));
    saveAs->setText(tr("Save &As..."));
    close->setText(tr("Close &Project"));
    copyScript->setText(tr("&Copy Script"));
    copyScript->setIconText(tr("Copy")); // on the button next to the script
    copyScript->setToolTip(tr("Copies the script to the clipboard"));
    saveScript->setText(tr("Save Scr&ipt..."));
    saveScript->setToolTip(tr("Saves the script in a file"));
    exportSheets->setText(tr("&Export Sheets..."));
    exportSheets->setIconText(tr("Export PDF..."));
    exportSheets->setToolTip(tr("Saves all pages in a file"));
    quit->setText(tr("&Quit"));
    design->setText(tr("&Design Parameters"));
    output->setText(tr("&Graphical Output..."));
    textOutput->setText(tr("&Text Output..."));
    sheet->setText(tr("&Sheet Preview"));
    design->setIconText(tr("Design"));
    output->setIconText(tr("Graphics"));
    textOutput->setIconText(tr("Text"));
    german->setText(tr("&German"));
    english->setText(tr("&English"));
    help->setText(tr("&Context Help"));
    for (int i = 0; i < books.size(); ++i)
        books[i]->setText(tr(Books[i].text));
    about->setText(tr("&About"));
    const bool isGerman = vkd::desktopLanguage() == vkd::Language::German;
    (isGerman ? german : english)->setChecked(true);
}

void WindowActions::enable(bool hasProject, bool isFileGone)
{
    for (QAction* action : {save, saveAs, close, design, output, textOutput, sheet})
        action->setEnabled(hasProject);
    reload->setEnabled(hasProject && !isFileGone);
    for (QAction* action : qAsConst(views))
        action->setEnabled(hasProject);
}

void WindowActions::setHasScript(bool hasScript)
{
    copyScript->setEnabled(hasScript);
    saveScript->setEnabled(hasScript);
    exportSheets->setEnabled(hasScript);
}

void WindowActions::setRecentFiles(const QStringList& paths)
{
    recentMenu->clear();
    int number = 0;
    for (const QString& path : paths) {
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        recentMenu->addAction(QStringLiteral("&%1 %2").arg(++number).arg(shown))->setData(path);
    }
    recentMenu->setEnabled(!paths.isEmpty());
}

} // namespace workbench
