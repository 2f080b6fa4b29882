#include "TestSupport.h"

#include <VKD_H_ZOBDoc.h>

#include <QTemporaryDir>

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
        for (int i = 0; i < 2; ++i) { // closing twice does no harm, neither here nor to others
            QCOMPARE(again->close(), int(VKD_ZOB_OK));
            QCOMPARE(again->index(), -1);
        }
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QCOMPARE(put(second), int(VKD_ZOB_NOT_OPEN));
        QCOMPARE(put(first), int(VKD_ZOB_OK));
        document.reset(); // closes
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QCOMPARE(put(first), int(VKD_ZOB_NOT_OPEN));
    }
};

PLIB_TEST_MAIN(TestDocuments)
#include "tst_documents.moc"
