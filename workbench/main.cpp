#include "commands.h"
#include "PlatformLog.h"

#include <vkd_lib_value.h>

#include <QApplication>
#include <QFont>
#include <QLocale>

#include <cstring>
#include <memory>

namespace {
/// Pictures are drawn off the screen, so that none is needed; all other commands do without
/// widgets.
std::unique_ptr<QCoreApplication> newApplication(int& argc, char* argv[])
{
    if (argc < 2 || std::strcmp(argv[1], "snapshots") != 0)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
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
    const auto application = newApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("plib_workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    return workbench::run(QCoreApplication::arguments());
}
