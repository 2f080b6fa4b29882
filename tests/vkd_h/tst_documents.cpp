#include "TestSupport.h"

#include <VKD_H_ZOBDoc.h>

#include <QProcess>
#include <QTemporaryDir>

/// Documents that a host leaves open: the first is closed when the process ends, the second is
/// never closed.
static std::unique_ptr<VKD_H_ZOBDoc> closedAtEnd;
static VKD_H_ZOBDoc* neverClosed;

static cd_error_t put(int index)
{
    const int length = 1;
    return vkd_zob_put(index, 77, 1, "x", &length, 1);
}

class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void life()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Träger.vkd"));
        const QRegularExpression notOpen(QStringLiteral("no project is open"));
        auto document = VKD_H_ZOBDoc::create(path);
        const auto again = VKD_H_ZOBDoc::open(path);
        QVERIFY(document && again && document->path() == path);
        const int first = document->index(), second = again->index();
        QVERIFY(first > 0 && second > 0 && first != second);
        for (int i = 0; i < 2; ++i) { // closing a document twice does not affect other documents
            QVERIFY(again->close().isOk());
            QCOMPARE(again->index(), -1);
        }
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QCOMPARE(put(second), int(VKD_ZOB_NOT_OPEN));
        QCOMPARE(put(first), int(VKD_ZOB_OK));
        document.reset(); // closes the document
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QCOMPARE(put(first), int(VKD_ZOB_NOT_OPEN));
    }

    /// The process does not crash or leave a journal of an unfinished change.
    void openAtEndOfProcess()
    {
        const QTemporaryDir folder;
        QProcess host;
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("host"), folder.path()});
        QVERIFY(host.waitForFinished(Patience));
        QCOMPARE(host.exitStatus(), QProcess::NormalExit);
        QCOMPARE(host.exitCode(), 0);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }
};

static int leaveOpen(const QString& folder)
{
    closedAtEnd = VKD_H_ZOBDoc::create(folder + QLatin1String("/a"));
    neverClosed = VKD_H_ZOBDoc::create(folder + QLatin1String("/b")).release();
    int failed = 0;
    for (int index : {closedAtEnd->index(), neverClosed->index()})
        failed += vkd_zob_lock_ex(index, 77, 1) != VKD_ZOB_OK || put(index) != VKD_ZOB_OK;
    return failed;
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "host") == 0)
        return leaveOpen(QString::fromLocal8Bit(argv[2]));
    TestDocuments test;
    return testsupport::run(&test, argc, argv);
}
#include "tst_documents.moc"
