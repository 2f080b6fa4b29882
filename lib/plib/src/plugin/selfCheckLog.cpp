#include "plugin/selfCheckLog.h"

#include <QDir>
#include <QFile>

namespace plib {

QString selfCheckLog(const QStringList& arguments)
{
    const QLatin1String mark("logpath:");
    QString folder;
    for (QString argument : arguments)
        if (argument.contains(mark, Qt::CaseInsensitive))
            folder = argument.remove(mark, Qt::CaseInsensitive);
    folder = QDir::toNativeSeparators(folder);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return folder + QLatin1String("VKD_P_Mix_UnitTest.log");
}

bool canQtTestLogTo(const QString& log)
{
    return !log.contains(QLatin1Char(',')) && QFile(log).open(QIODevice::Append);
}

} // namespace plib
