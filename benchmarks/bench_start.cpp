// The time from the start of the workbench until its window has been painted, and until the panes
// show the sample building. The baseline is a program that has only a main window with a tree of
// 100 rows.

#include "EndedByPicture.h"
#include "RatioReporter.h"
#include "window/main/runWindow.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <cstring>

namespace {
/// Returns a folder for the project and for settings that are separate from the user's settings.
const QTemporaryDir& folder()
{
    static const QTemporaryDir made;
    return made;
}

const QString& building()
{
    static const QString path = [] {
        QString made = folder().filePath(QStringLiteral("building.zob"));
        QProcess::execute(
            QStringLiteral(WORKBENCH),
            {QStringLiteral("new"), made, QStringLiteral("--model"), QStringLiteral("building")});
        return made;
    }();
    return path;
}

/// Runs the workbench. The arguments are the settings folder, the child widget to wait for, and a
/// project.
int runTimed(int argc, char* argv[])
{
    const QString settings = QFile::decodeName(argv[2]);
    const EndedByPicture application(argc, argv, QString::fromUtf8(argv[3]));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings);
    return workbench::runWindow(QFile::decodeName(argv[4]));
}

void start(benchmark::State& state, const QString& program, const QStringList& arguments)
{
    for (auto _ : state)
        if (QProcess::execute(program, arguments) != EXIT_SUCCESS)
            qFatal("the program failed");
}

void startWorkbench(benchmark::State& state, const char* child, const QString& project)
{
    start(state, QCoreApplication::applicationFilePath(),
          {QStringLiteral("--timed"), folder().path(), QString::fromUtf8(child), project});
}

void startBareWindow(benchmark::State& state)
{
    start(state, QStringLiteral(BARE_WINDOW), {});
}

void startWithoutProject(benchmark::State& state)
{
    startWorkbench(state, "", QString());
}

void startWithBuilding(benchmark::State& state)
{
    startWorkbench(state, "", building());
}

/// Measures the time until everything except the script has been painted.
void startUntilShown(benchmark::State& state)
{
    startWorkbench(state, "Records", building());
}

BENCHMARK(startWithBuilding)->UseRealTime();
BENCHMARK(startUntilShown)->UseRealTime();
BENCHMARK(startWithoutProject)->UseRealTime();
BENCHMARK(startBareWindow)->UseRealTime();
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1 && std::strcmp(argv[1], "--timed") == 0)
        return runTimed(argc, argv);
    const QCoreApplication application(argc, argv);
    const char peer[] = "starts a program that shows a main window with a tree of 100 rows";
    return runBenchmarks(
        argc, argv,
        {{"startWithBuilding/real_time", "startBareWindow/real_time", 1.7, peer},
         {"startUntilShown/real_time", "startBareWindow/real_time", 3.5, peer},
         {"startWithoutProject/real_time", "startBareWindow/real_time", 1.7, peer}});
}
