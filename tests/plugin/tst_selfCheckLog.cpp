#include "plugin/selfCheckLog.h"
#include "TestSupport.h"

class tst_selfCheckLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folders()
    {
        const std::pair<const char*, const char*> folders[] = {
            {"-v all", "/"},
            {"LOGPATH:/tmp/x", "/tmp/x/"},
            {"logpath:/tmp/x/", "/tmp/x/"},
            {"LogPath:/a logPATH:/b all", "/b/"}, // the last one wins,
            {"logpath:/a logpath:", "/"},         // though it is empty
            {"-logpath:/a/LOGPATH:b", "-/a/b/"},  // every mark goes
        };
        for (const auto& [arguments, folder] : folders)
            QCOMPARE(plib::selfCheckLog(QString::fromLatin1(arguments).split(QLatin1Char(' '))),
                     QLatin1String(folder) + QLatin1String("VKD_P_Mix_UnitTest.log"));
    }
};

PLIB_TEST_MAIN(tst_selfCheckLog)
#include "tst_selfCheckLog.moc"
