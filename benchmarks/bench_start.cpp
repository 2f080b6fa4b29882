// The window of the workbench from its constructor to its first picture, with the sample building
// and without a project, against a bare window with menus, a tool bar and a tree. The start of the
// process and the end of the window are not in the times. With the building, opening the project
// file and checking it is; what the panes show is read behind the first picture, in the program
// as here.

#include "RatioReporter.h"

#include <MainWindow.h>
#include <newProject.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTreeWidget>

namespace {
constexpr QSize Size(1280, 800); // that of the workbench

/// A folder with the project and the settings, which are not the user's own.
const QTemporaryDir& folder()
{
    static const QTemporaryDir made;
    return made;
}

const QString& building()
{
    static const QString path = [] {
        QString made = folder().filePath(QStringLiteral("building.zob"));
        workbench::newProject(made, QStringLiteral("building"));
        return made;
    }();
    return path;
}

/// The bare window. All its actions have texts, and those of the tool bar pictures.
class BareWindow : public QMainWindow
{
public:
    BareWindow()
    {
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        const QIcon icon(picture);
        auto bar = addToolBar(QStringLiteral("Tools"));
        bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        for (const char* title : {"File", "View", "Project", "Language", "Help"}) {
            QMenu* menu = menuBar()->addMenu(QLatin1String(title));
            for (const char* text : {"First", "Second", "Third", "Fourth"})
                menu->addAction(icon, QLatin1String(text));
            bar->addAction(menu->actions().first());
        }
        auto tree = new QTreeWidget;
        for (int row = 0; row < 100; ++row) {
            auto item = new QTreeWidgetItem({QStringLiteral("Principal stress I")});
            item->setCheckState(0, Qt::Checked);
            item->setIcon(0, icon);
            tree->addTopLevelItem(item);
        }
        setCentralWidget(tree);
        resize(Size);
    }
};

template <class Make>
void showWindow(benchmark::State& state, const Make& make)
{
    for (auto _ : state) {
        std::unique_ptr<QMainWindow> window = make();
        benchmark::DoNotOptimize(window->grab());
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

std::unique_ptr<workbench::MainWindow> newWindow()
{
    auto window = std::make_unique<workbench::MainWindow>(workbench::WindowServices());
    window->show();
    return window;
}

void startWithBuilding(benchmark::State& state)
{
    const QString project = building();
    showWindow(state, [&project] {
        auto window = newWindow();
        if (!window->openProject(project))
            qFatal("the building cannot be opened");
        return window;
    });
}

/// Until the panes show the building; only the script is still to come.
void startUntilDrawn(benchmark::State& state)
{
    const QString project = building();
    showWindow(state, [&project] {
        auto window = newWindow();
        window->hide(); // a window that nobody waits for shows the project at once
        if (!window->openProject(project))
            qFatal("the building cannot be opened");
        window->show();
        return window;
    });
}

void startWithoutProject(benchmark::State& state)
{
    showWindow(state, newWindow);
}

void startBareWindow(benchmark::State& state)
{
    showWindow(state, [] {
        auto window = std::make_unique<BareWindow>();
        window->show();
        return window;
    });
}

BENCHMARK(startWithBuilding);
BENCHMARK(startUntilDrawn);
BENCHMARK(startWithoutProject);
BENCHMARK(startBareWindow);
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder().path());
    return runBenchmarks(argc, argv,
                         {{"startWithBuilding", "startBareWindow", 2.0},
                          {"startUntilDrawn", "startBareWindow", 10.0},
                          {"startWithoutProject", "startBareWindow", 2.0}});
}
