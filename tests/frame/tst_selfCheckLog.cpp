#include "selfCheckLog.h"
#include "TestSupport.h"

class tst_selfCheckLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_data()
    {
        const Columns<QByteArray, QByteArray> row("arguments", "folder");
        using Bytes = QByteArray;
        row("root without any", Bytes("-v all"), Bytes("/"));
        row("separator appended", Bytes("LOGPATH:/tmp/x"), Bytes("/tmp/x/"));
        row("separator kept", Bytes("logpath:/tmp/x/"), Bytes("/tmp/x/"));
        row("last one wins", Bytes("LogPath:/a logPATH:/b all"), Bytes("/b/"));
        row("last one wins though empty", Bytes("logpath:/a logpath:"), Bytes("/"));
        row("every mark removed", Bytes("-logpath:/a/LOGPATH:b"), Bytes("-/a/b/"));
    }

    void folder()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(QByteArray, folder);
        const QStringList list = QString::fromLatin1(arguments).split(QLatin1Char(' '));
        QCOMPARE(plib::selfCheckLog(list), QLatin1String(folder + "VKD_P_Mix_UnitTest.log"));
    }
};

PLIB_TEST_MAIN(tst_selfCheckLog)
#include "tst_selfCheckLog.moc"
