#include "TemporaryProject.h"
#include "TestSupport.h"

#include <VKD_H_SelGRP_Dialog.h>

#include <numeric>

using Groups = std::vector<int>;

/// Tests the selection that the 3D view stores in a project.
class TestPickedGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project = std::make_unique<testsupport::TemporaryProject>(); }

    void roundTrip()
    {
        Groups many(3000);
        std::iota(many.begin(), many.end(), 1);
        const QList<QPair<Groups, Groups>> cases{
            {{}, {}}, {{9, 2, 9, 0}, {0, 2, 9}}, {{0x534c4f43, 7}, {7, 0x534c4f43}}, {many, many}};
        for (const auto& [put, got] : cases) {
            QVERIFY(VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), {100, 200, 300})
                        .isOk());
            QVERIFY(VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), put).isOk());
            m_project->reopen();
            Groups groups{1, 2};
            QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(m_project->index(), groups), 0);
            QCOMPARE(groups, got);
            QVERIFY(VKD_H_SelGRP_Dialog::removeAniSelectionFromZob(m_project->index()).isOk());
            groups = {1, 2};
            QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(m_project->index(), groups), -1);
            QCOMPARE(groups, (Groups{1, 2}));
        }
    }

    void bytesInTheProject()
    {
        QVERIFY(VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), {258}).isOk());
        QByteArray bytes(100, '\0');
        int length = bytes.size();
        QCOMPARE(vkd_zob_get(m_project->index(), 430, 0, bytes.data(), &length, 0),
                 int(VKD_ZOB_OK));
        vkd_zob_free_ex(m_project->index(), 430, 0);
        QCOMPARE(bytes.left(length), QByteArray("\1\0\0\0\2\1\0\0", 8));
    }

    void damaged()
    {
        for (const char* hex : {"020000", "0100000007", "0200000007000000", "00000000 07000000",
                                "ffffffff", "ffffff7f 07000000", "01000000 ffffffff",
                                "02000000 07000000 07000000", "02000000 07000000 06000000"}) {
            const QByteArray record = QByteArray::fromHex(hex);
            const int length = record.size();
            vkd_zob_put(m_project->index(), 430, 0, record.constData(), &length, 0);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is damaged")));
            Groups groups{1, 2};
            QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(m_project->index(), groups), -1);
            QCOMPARE(groups, (Groups{1, 2}));
        }
    }

    void refused()
    {
        QVERIFY(VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), {5}).isOk());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("-1 is no group")));
        QVERIFY(!VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), {-1}).isOk());
        const QString path = m_project->doc->path();
        m_project->doc.reset();
        QFile::setPermissions(path, QFile::ReadOwner);
        m_project->doc = VKD_H_ZOBDoc::open(path);
        const QRegularExpression locked(QStringLiteral("cannot lock"));
        QTest::ignoreMessage(QtWarningMsg, locked);
        QVERIFY(!VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->index(), {6}).isOk());
        QTest::ignoreMessage(QtWarningMsg, locked);
        QVERIFY(!VKD_H_SelGRP_Dialog::removeAniSelectionFromZob(m_project->index()).isOk());
        Groups groups;
        QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(m_project->index(), groups), 0);
        QCOMPARE(groups, Groups{5});
    }

private:
    std::unique_ptr<testsupport::TemporaryProject> m_project;
};

PLIB_TEST_MAIN(TestPickedGroups)
#include "tst_pickedGroups.moc"
