#include "TestSupport.h"

#include <VKD_H_ZOBDoc.h>

#include <QTemporaryDir>

class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void life()
    {
        const QString path = m_folder.filePath(QStringLiteral("Träger.vkd"));
        const QRegularExpression notOpen(QStringLiteral("no project is open"));
        const int length = 1;
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
        QCOMPARE(vkd_zob_put(second, 1, 1, "x", &length, 1), int(VKD_ZOB_NOT_OPEN));
        QCOMPARE(vkd_zob_put(first, 1, 1, "x", &length, 1), int(VKD_ZOB_OK));
        document.reset(); // closes
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QCOMPARE(vkd_zob_put(first, 1, 1, "x", &length, 1), int(VKD_ZOB_NOT_OPEN));
    }

    void scratch()
    {
        const int length = 1, key1 = 77, key2 = 1;
        auto document = VKD_H_ZOBDoc::scratch();
        QCOMPARE(vkd_zob_put(document->index(), key1, key2, "x", &length, 0), int(VKD_ZOB_OK));
        QCOMPARE(document->close(), int(VKD_ZOB_OK));
        document = VKD_H_ZOBDoc::scratch();
        char kept = 0;
        int room = 1;
        QCOMPARE(vkd_zob_get(document->index(), key1, key2, &kept, &room, 0), int(VKD_ZOB_OK));
        QCOMPARE(kept, 'x');
    }

private:
    QTemporaryDir m_folder;
};

PLIB_TEST_MAIN(TestDocuments)
#include "tst_documents.moc"
