#include "vkd_unittests.h"

#include "selfCheckLog.h"
#include "VKD_P_Mix_UnitTest.h"

#include <QFile>
#include <QtTest>

int vkd_unittests(const QStringList& arguments)
{
    const QString log = plib::selfCheckLog(arguments);
    // QtTest would end the host's process over a log that it cannot write, and takes a comma for
    // the end of the name.
    if (log.contains(QLatin1Char(',')) || !QFile(log).open(QIODevice::Append))
        return 1;
    VKD_P_Mix_UnitTest test;
    const QStringList testArguments{QStringLiteral("UNITTEST"), QStringLiteral("-o"), log};
    return QTest::qExec(&test, testArguments) == 0 ? 0 : 1;
}
