#include "TestSupport.h"

#include <designRecord.h>
#include <designStore.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <QTemporaryDir>

#include <cmath>
#include <limits>

using R = tagZOB_QUAD_RIM;

/// Records in a real project file, read as rows and written back.
class TestDesignStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newProjectGetsTheDefault();
    void otherRecordsAreLeftAlone();
    void folding_data();
    void folding();
    void shortRecordKeepsWhatStoodThere();
    void writing_data();
    void writing();
    void secondWriteConvertsNothing();
    void foreignRecordsGoToTheScratchStore();
    void newRows();

private:
    void put(const R& record, int length = int(sizeof(R)));
    plib::DesignParameterData data(int kind = 0);
    QString read();
    QString stored(int index, int key1, int key2);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
};

void TestDesignStore::init()
{
    m_doc.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_doc = VKD_H_ZOBDoc::create(m_folder->filePath(QStringLiteral("p.zob")));
    QVERIFY(m_doc != nullptr);
}

void TestDesignStore::put(const R& record, int length)
{
    const auto words = plib::toBytes(record);
    const QByteArray bytes = QByteArray(words.data(), int(words.size())) + "more";
    QCOMPARE(vkd_zob_put(m_doc->index(), 200, 6, bytes.constData(), &length, 1), VKD_ZOB_OK);
}

plib::DesignParameterData TestDesignStore::data(int kind)
{
    plib::DesignParameterData result;
    result.designDoc = m_doc.get();
    result.kindOfSystem = kind;
    return result;
}

static R record(int group, float rio)
{
    R r = plib::getDefaultMerPara(true);
    r.group = group;
    r.rio = rio;
    return r;
}

/// Groups and the direction that tells the parameters apart, "1,2:0.5 3:7".
static QString text(const plib::DesignParameterData& data)
{
    QStringList rows;
    for (const auto& row : data.rows) {
        QStringList groups;
        for (int group : row.groups)
            groups << QString::number(group);
        rows << groups.join(QLatin1Char(',')) + QLatin1Char(':') +
                    QString::number(double(row.record.rio));
    }
    return rows.join(QLatin1Char(' '));
}

QString TestDesignStore::read()
{
    auto rows = data();
    plib::readRowsFromZob(rows);
    return text(rows);
}

QString TestDesignStore::stored(int index, int key1, int key2)
{
    QStringList all;
    plib::RecordBytes bytes{};
    for (int length = int(bytes.size()), position = 0;
         vkd_zob_get(index, key1, key2, bytes.data(), &length, position) < 2;
         ++position, length = int(bytes.size())) {
        const R r = plib::fromBytes(bytes);
        all << QStringLiteral("%1:%2").arg(r.group).arg(double(r.rio));
    }
    vkd_zob_free_ex(index, key1, key2);
    return all.join(QLatin1Char(' '));
}

void TestDesignStore::newProjectGetsTheDefault()
{
    plib::checkAndCreateZobDefault(m_doc->index());
    plib::checkAndCreateZobDefault(m_doc->index());
    QCOMPARE(stored(m_doc->index(), 200, 6), QStringLiteral("-1:0"));
    auto rows = data();
    plib::readRowsFromZob(rows);
    QCOMPARE(int(rows.rows.size()), 1);
    QVERIFY(plib::isRemainingGroups(rows.rows[0].groups));
    QCOMPARE(rows.rows[0].record.type, 1);
    QCOMPARE(rows.rows[0].record.hioq, 0.045F - 0.035F);
    const int none = 0;
    vkd_zob_put(m_doc->index(), 200, 6, nullptr, &none, 0);
    plib::checkAndCreateZobDefault(m_doc->index()); // emptied answers as never written
    QCOMPARE(read(), QStringLiteral("-1:0"));
}

void TestDesignStore::otherRecordsAreLeftAlone()
{
    put(record(5, 1), 3);
    plib::checkAndCreateZobDefault(m_doc->index());
    QByteArray bytes(8, '\0');
    int length = bytes.size();
    QCOMPARE(vkd_zob_get(m_doc->index(), 200, 6, bytes.data(), &length, 0), VKD_ZOB_OK);
    QCOMPARE(length, 3);
}

using Records = QVector<QPair<int, float>>;

void TestDesignStore::folding_data()
{
    QTest::addColumn<Records>("records");
    QTest::addColumn<QString>("rows");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("neighbours fold")
        << Records{{1, 1}, {2, 1}, {3, 1}} << QStringLiteral("1,2,3:1");
    QTest::newRow("only neighbours")
        << Records{{1, 1}, {2, 2}, {1, 1}} << QStringLiteral("1:1 2:2 1:1");
    QTest::newRow("the remaining groups come first and part nothing")
        << Records{{1, 1}, {-1, 5}, {2, 1}} << QStringLiteral("-1:5 1,2:1");
    QTest::newRow("several of them stand in reverse order")
        << Records{{-1, 1}, {4, 4}, {-7, 2}, {-1, 1}} << QStringLiteral("-1:1 -1:2 -1:1 4:4");
    QTest::newRow("not a number never folds")
        << Records{{1, nan}, {2, nan}} << QStringLiteral("1:nan 2:nan");
    QTest::newRow("secondary groups")
        << Records{{999999, 1}, {1000000, 1}} << QStringLiteral("999999,1000000:1");
}

void TestDesignStore::folding()
{
    QFETCH(const Records, records);
    QFETCH(QString, rows);
    for (const auto& one : records) {
        put(record(one.first, one.second));
        R foreign = record(one.first, 99);
        foreign.mark = 5;
        put(foreign);
        foreign.mark = 0;
        foreign.subId = 1;
        put(foreign);
    }
    QCOMPARE(read(), rows);
    auto twice = data();
    plib::readRowsFromZob(twice);
    const size_t count = twice.rows.size();
    plib::readRowsFromZob(twice); // appends, removes nothing
    QCOMPARE(twice.rows.size(), 2 * count);
}

void TestDesignStore::shortRecordKeepsWhatStoodThere()
{
    R first = record(1, 1);
    first.wko = 0.3F;
    put(first);
    put(record(2, 2), 60);  // ends behind hio
    put(record(3, 3), 216); // is cut
    auto rows = data();
    plib::readRowsFromZob(rows);
    QCOMPARE(text(rows), QStringLiteral("1:1 2:2 3:3"));
    QCOMPARE(rows.rows[1].record.wko, 0.3F);
    // What stood there is the spacing of the first record, and it is turned into one once more.
    QCOMPARE(rows.rows[1].record.hioq, -99999.0F);
    QCOMPARE(rows.rows[2].record.hioq, 0.045F - 0.035F);
}

void TestDesignStore::writing_data()
{
    QTest::addColumn<QVector<QVector<int>>>("groups");
    QTest::addColumn<QString>("expected");
    using Groups = QVector<QVector<int>>;
    QTest::newRow("one record a group") << Groups{{1, 3}, {2}} << QStringLiteral("1:0 3:0 2:1");
    QTest::newRow("remaining groups first") << Groups{{4}, {-1}} << QStringLiteral("-1:1 4:0");
    QTest::newRow("a list with -1 is no such row")
        << Groups{{7}, {-1, 4}} << QStringLiteral("7:0 -1:1 4:1");
    QTest::newRow("rows without groups have no place") << Groups{{}, {}} << QString();
}

void TestDesignStore::writing()
{
    QFETCH(const QVector<QVector<int>>, groups);
    QFETCH(QString, expected);
    put(record(77, 1)); // is replaced
    auto rows = data();
    for (const QVector<int>& list : groups) {
        plib::DesignParameterRow row;
        row.record = record(0, float(rows.rows.size()));
        plib::toEditedForm(row.record, 0);
        row.groups = {list.begin(), list.end()};
        rows.rows.push_back(row);
    }
    bool converted = false;
    plib::writeRowsToZob(rows, converted);
    QCOMPARE(stored(m_doc->index(), 200, 6), expected);
    if (rows.rows[0].groups.empty())
        return;
    plib::RecordBytes bytes{};
    int length = int(bytes.size());
    vkd_zob_get(m_doc->index(), 200, 6, bytes.data(), &length, 0);
    vkd_zob_free_ex(m_doc->index(), 200, 6);
    QCOMPARE(length, 212);
    QCOMPARE(plib::fromBytes(bytes).hioq, 0.045F);
}

void TestDesignStore::secondWriteConvertsNothing()
{
    plib::checkAndCreateZobDefault(m_doc->index());
    auto rows = data();
    plib::readRowsFromZob(rows);
    bool converted = false;
    plib::writeRowsToZob(rows, converted);
    QVERIFY(converted);
    QCOMPARE(rows.rows[0].record.hioq, 0.045F); // and stays in the stored form
    plib::writeRowsToZob(rows, converted);
    auto again = data();
    plib::readRowsFromZob(again);
    QCOMPARE(again.rows[0].record.hioq, 0.045F - 0.035F);
}

void TestDesignStore::foreignRecordsGoToTheScratchStore()
{
    R foreign = record(8, 8);
    foreign.mark = 5;
    put(record(1, 1));
    put(foreign);
    auto rows = data();
    plib::readRowsFromZob(rows);
    bool converted = false;
    plib::writeRowsToZob(rows, converted);
    QCOMPARE(stored(m_doc->index(), 200, 6),
             QStringLiteral("1:1")); // the other one is gone, on purpose
    QCOMPARE(stored(0, 0, 12979), QStringLiteral("8:8"));
    plib::writeRowsToZob(rows, converted);
    QCOMPARE(stored(0, 0, 12979), QString());
}

void TestDesignStore::newRows()
{
    auto rows = data();
    QCOMPARE(plib::addDefaultRow(rows).record.hioq, 0.045F - 0.035F);
    rows.kindOfSystem = 12;
    QCOMPARE(plib::addDefaultRow(rows).record.hio, -99999.0F);
    rows.kindOfSystem = -99999; // not known yet
    QCOMPARE(plib::addDefaultRow(rows).record.hioq, 0.045F);
    QCOMPARE(int(rows.rows.size()), 3);
    QVERIFY(rows.rows[2].groups.empty());
    QCOMPARE(rows.rows[2].record.type, 0);
}

PLIB_TEST_MAIN(TestDesignStore)
#include "tst_designStore.moc"
