#include "TemporaryProject.h"
#include "TestSupport.h"

#include <record/designRecord.h>
#include <record/designRows.h>
#include <record/designStore.h>
#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <limits>

using R = tagZOB_QUAD_RIM;

static R record(int group, float rio)
{
    R r = plib::getDefaultMerPara(true);
    r.group = group;
    r.rio = rio;
    return r;
}

/// Returns the groups and the direction that distinguishes the parameters, such as "1,2:0.5 3:7".
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

using Records = QVector<QPair<int, float>>;

/// Tests reading the records of a project file as rows and writing them back.
class TestDesignStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project = std::make_unique<testsupport::TemporaryProject>(); }

    void newProjectGetsTheDefault()
    {
        plib::checkAndCreateZobDefault(m_project->index());
        plib::checkAndCreateZobDefault(m_project->index());
        QCOMPARE(stored(), QStringLiteral("-1:0"));
        auto rows = read();
        QCOMPARE(int(rows.rows.size()), 1);
        QVERIFY(plib::isRemainingGroups(rows.rows[0].groups));
        QCOMPARE(rows.rows[0].record.type, 1);
        QCOMPARE(rows.rows[0].record.hioq, 0.045F - 0.035F);
        const int none = 0;
        vkd_zob_put(m_project->index(), 200, 6, nullptr, &none, 0);
        plib::checkAndCreateZobDefault(m_project->index()); // creates a record in the empty project
        QCOMPARE(text(read()), QStringLiteral("-1:0"));
    }

    void folding_data()
    {
        const Columns<Records, QString> row("records", "rows");
        const float nan = std::numeric_limits<float>::quiet_NaN();
        row("neighbours fold", {{1, 1}, {2, 1}, {3, 1}}, "1,2,3:1");
        row("only neighbours", {{1, 1}, {2, 2}, {1, 1}}, "1:1 2:2 1:1");
        row("the remaining groups come first and part nothing",
            {{1, 1}, {-1, 5}, {2, 1}, {-1, 5}, {3, 5}}, "-1:5 -1:5 1,2:1 3:5");
        row("several of them stand in reverse order", {{-1, 1}, {4, 4}, {-7, 2}, {-1, 1}},
            "-1:1 -1:2 -1:1 4:4");
        row("not a number never folds", {{1, nan}, {2, nan}, {3, nan}}, "1:nan 2:nan 3:nan");
        row("secondary groups", {{999999, 1}, {1000000, 1}}, "999999,1000000:1");
    }

    void folding()
    {
        QFETCH(const Records, records);
        QFETCH(QString, rows);
        for (const auto& one : records) {
            put(record(one.first, one.second));
            if (&one != &records.first()) // the others follow each other directly
                continue;
            R foreign = record(one.first, 99);
            foreign.mark = 5;
            put(foreign);
            foreign.mark = 0;
            foreign.subId = 1;
            put(foreign);
        }
        QCOMPARE(text(read()), rows);
        auto twice = read();
        const size_t count = twice.rows.size();
        plib::readRowsFromZob(twice); // appends the rows without removing rows
        QCOMPARE(twice.rows.size(), 2 * count);
    }

    void shortRecordLeavesTheOtherBytes()
    {
        R first = record(1, 1);
        first.wko = 0.3F;
        put(first);
        put(record(2, 2), 60);  // ends after hio
        put(record(3, 3), 216); // is truncated
        auto rows = read();
        QCOMPARE(text(rows), QStringLiteral("1:1 2:2 3:3"));
        QCOMPARE(rows.rows[1].record.wko, 0.3F);
        // The spacing bytes of the previous record are preserved and converted once more.
        QCOMPARE(rows.rows[1].record.hioq, -99999.0F);
        QCOMPARE(rows.rows[2].record.hioq, 0.045F - 0.035F);
    }

    void writing_data()
    {
        const Columns<QVector<QVector<int>>, QString> row("groups", "expected");
        using Groups = QVector<QVector<int>>;
        row("one record a group", Groups{{1, 3}, {2}}, "1:0 3:0 2:1");
        row("remaining groups first", Groups{{4}, {-1}}, "-1:1 4:0");
        row("a list with -1 is no such row", Groups{{7}, {-1, 4}}, "7:0 -1:1 4:1");
        row("rows without groups have no place", Groups{{}, {}}, {});
    }

    void writing()
    {
        QFETCH(const QVector<QVector<int>>, groups);
        put(record(77, 1)); // is replaced
        auto rows = data();
        for (const QVector<int>& list : groups) {
            plib::DesignParameterRow row;
            row.record = record(0, float(rows.rows.size()));
            plib::toEditedForm(row.record, 0);
            row.groups = {list.begin(), list.end()};
            rows.rows.push_back(row);
        }
        write(rows);
        QTEST(stored(), "expected");
        if (rows.rows[0].groups.empty())
            return;
        plib::RecordBytes bytes{};
        int length = int(bytes.size());
        vkd_zob_get(m_project->index(), 200, 6, bytes.data(), &length, 0);
        vkd_zob_free_ex(m_project->index(), 200, 6);
        QCOMPARE(length, 212);
        QCOMPARE(plib::fromBytes(bytes).hioq, 0.045F);
    }

    void secondWriteConvertsNothing()
    {
        plib::checkAndCreateZobDefault(m_project->index());
        auto rows = read();
        bool converted = false;
        plib::writeRowsToZob(rows, converted);
        QVERIFY(converted);
        QCOMPARE(rows.rows[0].record.hioq, 0.045F); // stays in the stored form
        plib::writeRowsToZob(rows, converted);
        QCOMPARE(read().rows[0].record.hioq, 0.045F - 0.035F);
    }

    /// A reader sees either all rows of a writer or none, because the project is locked once for
    /// all writes.
    void writingTakesTheProject()
    {
        put(record(1, 1));
        const auto other = VKD_H_ZOBDoc::open(m_project->doc->path());
        auto rows = data();
        rows.rows = {{nullptr, record(0, 5), {2, 3}}, {nullptr, record(0, 6), {4}}};
        vkd_zob_lock_ex(other->index(), 200, 6);
        vkd_lib_setvalue(201, 30);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("cannot lock"))); // once
        write(rows, true);
        vkd_zob_free_ex(other->index(), 200, 6);
        QCOMPARE(text(read()), QStringLiteral("1:1"));
    }

    void foreignRecordsGoToTheScratchStore()
    {
        R foreign = record(8, 8), own = record(1, 1);
        foreign.mark = 5;
        own.mark = 0; // as written by older programs
        put(own);
        put(foreign);
        auto rows = read();
        write(rows);
        QCOMPARE(stored(), QStringLiteral("1:1")); // the other record is deliberately removed
        QCOMPARE(stored(0, 0, 12979), QStringLiteral("8:8"));
        write(rows);
        QCOMPARE(stored(0, 0, 12979), QString());
    }

    void removedGroups()
    {
        auto rows = data();
        for (const std::vector<int>& groups : {std::vector<int>{-1}, {1, 2, 2, 3}, {}, {4}, {3, 5}})
            rows.rows.push_back({nullptr, record(0, float(groups.size())), groups});
        plib::removeGroups(rows, {4, 2, 3, 9});
        QCOMPARE(text(rows), QStringLiteral("-1:1 1:4 :0 5:2"));
    }

    /// Row 0 is reserved. An outdated row number may be out of range.
    void operationsOfARow()
    {
        plib::DesignParameterData rows = data();
        for (int group : {-1, 1, 2, 3})
            rows.rows.push_back({nullptr, record(group, 0), {group}});
        rows.rows[2].record.type = plib::NoDesign;
        QString texts;
        for (int row = -1; row <= 4; ++row)
            texts +=
                QStringLiteral("%1%2%3%4%5<%6>%7 ")
                    .arg(row)
                    .arg(plib::mayMoveUp(rows, row) ? QStringLiteral("u") : QString(),
                         plib::mayMoveDown(rows, row) ? QStringLiteral("d") : QString(),
                         plib::listsAfterAssigning(rows, row, {5}).empty() ? QString()
                                                                           : QStringLiteral("a"),
                         plib::commonType(rows, {row}) ? QStringLiteral("t") : QString())
                    .arg(plib::designRowBeside(rows, row, -1))
                    .arg(plib::designRowBeside(rows, row, 1));
        QCOMPARE(texts, QStringLiteral("-1<-1>0 0t<-1>1 1dat<0>3 2udat<1>3 3uat<1>-1 4<3>-1 "));
    }

    void newRows()
    {
        auto rows = data();
        for (int kind : {0, 12, -99999}) { // the last value means that the kind is not known yet
            rows.kindOfSystem = kind;
            plib::addDefaultRow(rows);
        }
        QCOMPARE(int(rows.rows.size()), 3);
        QCOMPARE(rows.rows[0].record.hioq, 0.045F - 0.035F);
        QCOMPARE(rows.rows[1].record.hio, -99999.0F);
        QCOMPARE(rows.rows[2].record.hioq, 0.045F);
        QVERIFY(rows.rows[2].groups.empty());
        QCOMPARE(rows.rows[2].record.type, 0);
    }

private:
    void put(const R& record, int length = int(sizeof(R)))
    {
        const auto words = plib::toBytes(record);
        const QByteArray bytes = QByteArray(words.data(), int(words.size())) + "more";
        QCOMPARE(vkd_zob_put(m_project->index(), 200, 6, bytes.constData(), &length, 1),
                 VKD_ZOB_OK);
    }

    plib::DesignParameterData data()
    {
        plib::DesignParameterData result;
        result.designDoc = m_project->doc.get();
        result.kindOfSystem = 0;
        return result;
    }

    plib::DesignParameterData read()
    {
        auto rows = data();
        plib::readRowsFromZob(rows);
        return rows;
    }

    void write(plib::DesignParameterData& rows, bool converted = false)
    {
        plib::writeRowsToZob(rows, converted);
    }

    /// Returns the records with this key pair, by default the design records.
    QString stored() { return stored(m_project->index(), 200, 6); }
    QString stored(int index, int key1, int key2)
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

    std::unique_ptr<testsupport::TemporaryProject> m_project;
};

PLIB_TEST_MAIN(TestDesignStore)
#include "tst_designStore.moc"
