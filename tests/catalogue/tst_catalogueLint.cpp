#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <catalogue/catalogueLint.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>

#include <QBuffer>
#include <QFile>
#include <QSet>

static QString findings(QIODevice& device)
{
    QString text;
    for (const auto& finding : plib::lintCatalogue(device, nullptr))
        text += QStringLiteral("%1: %2\n").arg(finding.line).arg(finding.text);
    return text;
}

class TestCatalogueLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings_data()
    {
        const Columns<QByteArray, QString> row("file", "expected");
        const QByteArray good = "1|0|0|@A__ a|@B__ b|@C__ c| |0| |0|0| |0|g|e\n";
        row("nothing wrong", "// x\n\n" + good, "");
        row("too few", "1|2|3\n", "1: dropped: 3 columns, 15 are needed\n");
        row("German blank", QByteArray(good).replace("|g|", "| |"),
            "1: dropped: the German script line is blank\n");
        row("English blank", "\n" + QByteArray(good).replace("|e\n", "| \n"),
            "2: dropped: the English script line is blank\n");
        row("adjacent bars", QByteArray(good).replace("|0|g|e", "||0|g|e"),
            "1: adjacent bars count as one: the columns behind them are shifted\n");
        row("script carried over", good + "1|0|0|@A__ a|@B__ b|@D__ d| |0| |0|0| |0|g\n",
            "2: no English script line: that of line 1 is used\n");
        row("unknown tag", QByteArray(good).replace("c| |0|", "c|Quod|0|"),
            "1: unknown content tag \"Quod\": the plot is shown for every model\n");
        row("unknown word", QByteArray(good).replace("c| |0| |", "c| |0|lost-l|"),
            "1: unknown case word \"lost-l\": the plot stands without load cases\n");
        row("no suffix", QByteArray(good).replace("c| |0| |", "c| |0|last-x|"),
            "1: \"last-x\" ends in none of -l, -c and -e: the plot never makes a line\n");
        row("empty caption", QByteArray(good).replace("@C__ c", "@C__"),
            "1: never shown: a caption is empty\n");
        row("no page", QByteArray(good).replace("1|0|0|", "x|0|0|"),
            "1: never shown: no kind of page is named\n");
        row("called as its parent", QByteArray(good).replace("__ c", "__ b"),
            "1: the plot is called \"b\" as the level above: later plots get lost in it\n");
        row("shared identifier", good + QByteArray(good).replace("__ c", "__ d"),
            "2: identifier \"@A__   @B__   @C__\" shared with the plot of line 1\n");
        row("shared, but on another page", good + QByteArray(good).replace("1|0|0", "2|3|0"), "");
        row("shared, but for other kinds of system",
            QByteArray(good).replace("|0|g", "|3|g") + QByteArray(good).replace("|0|g", "|4|g"),
            "");
        row("two captions of one identifier",
            good + QByteArray(good).replace("__ a", "__ A").replace("@C", "@D"),
            "2: identifier \"@A__\" stands for \"A\" here and for \"a\" in line 1\n");
        row("colon", QByteArray(good).replace("@C__", "@C:_"),
            "1: colon in the identifier \"@A__   @B__   @C:_\": the choice cannot be stored\n");
        row("long line", good.chopped(1) + QByteArray(1000, 'e') + "\n",
            "1: longer than 1023 bytes: the rest is read as a line of its own\n"
            "1: dropped: 1 columns, 15 are needed\n");
    }

    void findings()
    {
        QFETCH(QByteArray, file);
        QBuffer device(&file);
        device.open(QIODevice::ReadOnly);
        QTEST(::findings(device), "expected");
    }

    void ourCatalogueIsClean()
    {
        for (int language : {0, 1}) {
            vkd_lib_setvalue(102, language);
            QFile file(
                QFile::decodeName(vkd_lib_searchpath("graphicaloutput.data", 3).value().c_str()));
            QVERIFY(file.open(QIODevice::ReadOnly));
            std::vector<plib::GraphicalOutputRecord> records;
            for (const auto& finding : plib::lintCatalogue(file, &records))
                QFAIL(qPrintable(QStringLiteral("%1: %2").arg(finding.line).arg(finding.text)));
            QVERIFY(records.size() >= 90);
            // The shipped catalogue uses the whole format, so that the output shows the effect of
            // every rule.
            QSet<QString> tags;
            QSet<QString> words;
            int masks = 0;
            for (const auto& record : records) {
                tags.insert(record.contentTag);
                words.insert(record.caseWord.section(QLatin1Char('-'), 0, 0));
                words.insert(record.caseWord.section(QLatin1Char('-'), 1));
                masks |= record.systemMask;
                QCOMPARE(record.scriptEnglish.contains(QLatin1String("$(LFNR)")),
                         record.prog1 == 122);
            }
            QCOMPARE(tags.size(), 17 + 1);
            QCOMPARE(words.size(), 10 + 3 + 1);
            QCOMPARE(masks, 15);
        }
    }
};

PLIB_TEST_MAIN(TestCatalogueLint)
#include "tst_catalogueLint.moc"
