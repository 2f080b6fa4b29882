#include "commands.h"
#include "PlatformLog.h"

#include <vkd_lib_value.h>

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QLocale>

#include <cstdio>
#include <memory>

namespace {
bool hasDisplay()
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    return false;
}

/// Without a command, and on a desktop, the window is what is wanted: alone or on a file.
QStringList commandOf(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const bool isFile = arguments.size() == 1 && !workbench::isCommand(arguments[0]) &&
                        QFileInfo(arguments[0]).isFile();
    if (hasDisplay() && (arguments.isEmpty() || isFile))
        arguments.prepend(QStringLiteral("window"));
    return arguments;
}

/// Pictures are drawn off the screen, so that none is needed; other commands than these two do
/// without widgets.
std::unique_ptr<QCoreApplication> newApplication(bool opensWindow, const QStringList& command,
                                                 int& argc, char* argv[])
{
    if (opensWindow)
        return std::make_unique<QApplication>(argc, argv);
    if (command.value(0) != QLatin1String("snapshots"))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(workbench::snapshotsPixelRatio(command)));
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // as desktops have it
    return application;
}
} // namespace

int main(int argc, char* argv[])
{
    workbench::PlatformLog::install();
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, QLocale().language() == QLocale::German ? 0 : 1);
    const QStringList command = commandOf(argc, argv);
    const bool opensWindow = command.value(0) == QLatin1String("window") &&
                             !command.contains(QLatin1String("--help")) &&
                             !command.contains(QLatin1String("-h"));
    if (opensWindow && !hasDisplay()) { // Qt would end the process with a core file
        std::fputs("plib_workbench: the window needs a display\n", stderr);
        return 1;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const auto application = newApplication(opensWindow, command, argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("plib_workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    return workbench::run(QStringList(QCoreApplication::applicationName()) + command);
}
