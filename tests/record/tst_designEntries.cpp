#include "TemporaryProject.h"
#include "TestSupport.h"

#include <record/designEntries.h>
#include <record/designRecord.h>
#include <VKD_H_ProjectDialogPage.h>

static const char Defaults[] =
    "1; | 0;1.5708;-99999;0;1.5708;-99999; | 0.035;0.045;0.045;0.035;0.045;0.045; | 0;0;0; | "
    "10;10;10;10;10;10; | -99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;"
    "-99999;-99999; | 11;";

static QString summary(const tagZOB_QUAD_RIM& r)
{
    QStringList texts{QString::number(r.type), QString::number(r.mark)};
    for (float value :
         {r.rio, r.riui, r.hiui, r.zref, r.dio, r.diu, r.dioq, r.diui, r.wkui, r.sigo, r.sigui})
        texts << QString::number(double(value));
    return texts.join(QLatin1Char(' '));
}

static plib::DesignParameterRow rowOf(int type, std::vector<int> groups)
{
    plib::DesignParameterRow row;
    row.record = plib::getDefaultMerPara(true); // in the stored form, as after writing to the store
    row.record.type = type;
    row.groups = std::move(groups);
    return row;
}

class TestDesignEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsing_data()
    {
        // expected: type mark rio riui hiui zref dio diu dioq diui wkui sigo sigui
        const Columns<QString, QString> row("text", "expected");
        row("without closing semicolons",
            "2|1;2;3;4;5;6|1;2;3;4;5;6|1;2;3|1;2;3;4;5;6|"
            "1;2;3;4;5;6;7;8;9;10;11;12|11",
            "2 11 1 6 6 3 1 2 3 6 6 7 12");
        row("too few fields", "2; | 0", "0 0 0 0 0 0 0 0 0 0 0 0 0");
        row("empty fields", "||||||", "0 0 0 0 0 0 0 0 0 0 0 0 0");
        row("more than seven fields", "3||||||0|9|9", "3 0 0 0 0 0 0 0 0 0 0 0 0");
        row("one diameter", "1;||||8;||", "1 0 0 0 0 0 8 0 0 0 0 0 0");
        row("four diameters are one", "1;||||8;9;10;11;||", "1 0 0 0 0 0 8 0 0 0 0 0 0");
        row("five and a next element are six", "1;||||8;9;10;11;12;||",
            "1 0 0 0 0 0 8 9 10 0 0 0 0");
        row("stresses are read as integers", "1|||||;;;;;;347.8;0;0;0;0;1.23457e+06|",
            "1 0 0 0 0 0 0 0 0 0 0 0 0");
        row("whole stresses and unset ones", "1|||||;;;;;;500;0;0;0;0;-99999|",
            "1 0 0 0 0 0 0 0 0 0 0 500 -99999");
        row("no numbers", "x;|y;||||;;;;;z|1.5", "0 0 0 0 0 0 0 0 0 0 0 0 0");
    }

    void parsing()
    {
        QFETCH(QString, text);
        plib::DesignParameterRow row;
        plib::parseEntry(text, row);
        QTEST(summary(row.record), "expected");
    }

    void fieldsMissingInAnEntry()
    {
        tagZOB_QUAD_RIM record = plib::getDefaultMerPara(true);
        QCOMPARE(plib::entryText(record), QLatin1String(Defaults));
        record.aso = 5;
        record.amo = 6;
        record.sigo = 347.8F;
        record.sigoq = 240;
        plib::DesignParameterRow row;
        plib::parseEntry(plib::entryText(record), row);
        QCOMPARE(row.record.rioq, 1.5708F);
        QCOMPARE(row.record.sigo, 0.0F);
        QCOMPARE(row.record.sigoq, 240.0F);
        // The values are not -99999.0, because the format does not contain them and the reader adds
        // no default values.
        for (float lost : {row.record.aso, row.record.asui, row.record.amo, row.record.reservedD,
                           row.record.reservedS, row.record.reservedM})
            QCOMPARE(lost, 0.0F);
        QCOMPARE(row.record.mode, 0);
    }

    void rowsWithoutGroupsAreSavedAndRestored()
    {
        VKD_H_ProjectDialogPage page;
        for (int n = 1; n <= 4; ++n)
            page.setEntry(QStringLiteral("MerPara%1").arg(n), QStringLiteral("old"));
        plib::DesignParameterData data;
        data.rows = {rowOf(1, {4}), rowOf(2, {}), rowOf(3, {-1}), rowOf(4, {})};
        plib::writeRowsToEntries(data, page);
        for (const char* old : {"MerPara3", "MerPara4"}) // from an earlier, longer list
            QVERIFY(page.getEntry(QLatin1String(old), QString()).isNull());

        plib::DesignParameterData read;
        read.rows = {rowOf(0, {1})};
        plib::readRowsFromEntries(read, page);
        QCOMPARE(int(read.rows.size()), 3);
        QCOMPARE(read.rows[1].record.type, 2);
        QCOMPARE(read.rows[2].record.type, 4);
        QVERIFY(read.rows[2].groups.empty());
        QCOMPARE(read.rows[2].record.hioq, 0.045F - 0.035F);
        read.kindOfSystem = 10;
        plib::readRowsFromEntries(read, page);
        QCOMPARE(read.rows[3].record.hio, -99999.0F);

        data.rows.resize(1);
        plib::writeRowsToEntries(data, page);
        QVERIFY(page.getEntry(QStringLiteral("MerPara1"), QString()).isNull());
    }

    void gapsInTheKeys()
    {
        VKD_H_ProjectDialogPage page;
        page.setEntry(QStringLiteral("MerPara1"), QLatin1String(Defaults));
        page.setEntry(QStringLiteral("MerPara2"), QString());
        page.setEntry(QStringLiteral("MerPara3"), QLatin1String(Defaults));
        plib::DesignParameterData data;
        plib::readRowsFromEntries(data, page);
        QCOMPARE(int(data.rows.size()), 1);
        plib::writeRowsToEntries(data, page); // the empty entry also ends the removal
        QVERIFY(!page.getEntry(QStringLiteral("MerPara3"), QString()).isNull());
    }
};

PLIB_TEST_MAIN(TestDesignEntries)
#include "tst_designEntries.moc"
