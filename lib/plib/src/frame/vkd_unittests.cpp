#include "vkd_unittests.h"

#include "selfCheckLog.h"
#include "VKD_P_Mix_UnitTest.h"

#include <QtTest>

int vkd_unittests(const QStringList& arguments)
{
    VKD_P_Mix_UnitTest test;
    const QStringList testArguments{QStringLiteral("UNITTEST"), QStringLiteral("-o"),
                                    plib::selfCheckLog(arguments)};
    return QTest::qExec(&test, testArguments) == 0 ? 0 : 1;
}
