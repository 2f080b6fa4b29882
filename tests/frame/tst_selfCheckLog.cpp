#include "selfCheckLog.h"
#include "TestSupport.h"

class tst_selfCheckLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_data();
    void folder();
};

void tst_selfCheckLog::folder_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("folder");
    using Bytes = QByteArray;
    QTest::newRow("root without any") << Bytes("-v all") << Bytes("/");
    QTest::newRow("separator appended") << Bytes("LOGPATH:/tmp/x") << Bytes("/tmp/x/");
    QTest::newRow("separator kept") << Bytes("logpath:/tmp/x/") << Bytes("/tmp/x/");
    QTest::newRow("last one wins") << Bytes("LogPath:/a logPATH:/b all") << Bytes("/b/");
    QTest::newRow("last one wins though empty") << Bytes("logpath:/a logpath:") << Bytes("/");
    QTest::newRow("every mark removed") << Bytes("-logpath:/a/LOGPATH:b") << Bytes("-/a/b/");
}

void tst_selfCheckLog::folder()
{
    QFETCH(QByteArray, arguments);
    QFETCH(QByteArray, folder);
    const QStringList list = QString::fromLatin1(arguments).split(QLatin1Char(' '));
    QCOMPARE(plib::selfCheckLog(list), QLatin1String(folder + "VKD_P_Mix_UnitTest.log"));
}

PLIB_TEST_MAIN(tst_selfCheckLog)
#include "tst_selfCheckLog.moc"
