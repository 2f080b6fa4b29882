#include "commands.h"
#include "PlatformLog.h"

#include <vkd_lib_value.h>

#include <QCoreApplication>
#include <QLocale>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("plib_workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    workbench::PlatformLog::install();
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, QLocale().language() == QLocale::German ? 0 : 1);
    return workbench::run(QCoreApplication::arguments());
}
