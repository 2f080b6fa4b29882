#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <catalogue/Catalogue.h>
#include <catalogue/CatalogueLines.h>
#include <catalogue/catalogueLint.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>

#include <QBuffer>
#include <QTextStream>

static QString text(const testsupport::Records& records)
{
    QString all;
    QTextStream out(&all);
    for (const plib::GraphicalOutputRecord& r : records) {
        out << r.prog1 << ',' << r.prog2 << ',' << r.prog3 << " [" << r.title1 << '/' << r.title2
            << '/' << r.title3 << "] {" << r.id1 << "}{" << r.id2 << "}{" << r.id3 << "} "
            << r.contentTag << ' ' << r.number7 << ' ' << r.caseWord << ':' << r.ctrl << ','
            << r.rowClass << ',' << r.rowMark << ' ' << r.preselect << ' ' << r.viewKind << ' '
            << r.text11 << ' ' << r.systemMask << " <" << r.scriptGerman << "> <" << r.scriptEnglish
            << ">\n";
    }
    return all;
}

static QString findings(QIODevice& device)
{
    QString text;
    for (const auto& finding : plib::lintCatalogue(device, nullptr))
        text += QStringLiteral("%1: %2\n").arg(finding.line).arg(finding.text);
    return text;
}

/// Tests reading a catalogue, and the problems that are found in it.
class TestCatalogueParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_texts = std::make_unique<testsupport::Texts>("0|BAS|Grund|Base\n0|25C|Vor|Pre\n");
        vkd_lib_setvalue(102, 1);
    }

    void records_data()
    {
        const Columns<QByteArray, QString> row("file", "expected");
        const QByteArray fifteen = "3|0|0|A|B|C|Node|7|last-l|1|1|x|0|KNOT|NODE\n";
        const QString record = QStringLiteral("3,0,0 [A/B/C] {    001}{    002}{    003}"
                                              " Node 7 last-l:1,1,1 1 1 x 0 <KNOT> <NODE>\n");
        const QByteArray fourteen = "4|0|0|A|B|D|Node|7|last-l|1|1|x|0|STAB";
        QString carried = record;
        carried.replace(0, 1, QLatin1Char('4')).replace(QLatin1String("B/C"), QLatin1String("B/D"));
        carried.replace(QLatin1String("KNOT"), QLatin1String("STAB"));

        row("empty file", QByteArray(), {});
        row("comments and blanks", QByteArray("// a|b\n\n  \t\r\n//\n"), {});
        row("indented comment has too few parts", QByteArray(" // a|b\n"), {});
        row("fifteen parts", fifteen, record);
        row("no line feed at the end", fifteen.chopped(1), record);
        row("carriage return", QByteArray(fifteen).replace("\n", "\r\n"), record);
        row("comment", "//" + fifteen, {});
        row("sixteen parts", fifteen.chopped(1) + "|ignored\n", record);
        row("blanks around", QByteArray(fifteen).replace("|", " \t|\v "), record);
        row("no number is 0", QByteArray(fifteen).replace("3|0|0|A", "x|1e3|0x1|A"),
            QString(record).replace(0, 1, QLatin1Char('0')));
        row("adjacent bars shift", QByteArray("3|0|0|A|B|C||Node|7|last-l|1|1|x|0|KNOT|NODE\n"),
            record);
        row("fourteen parts first", fourteen, {});
        row("fourteen parts after fifteen", fifteen + fourteen, record + carried);
        row("fourteen columns and a bar", fifteen + fourteen + "|\n", record);
        row("fourteen columns and a bar without line feed", fifteen + fourteen + "|",
            record + carried);
        row("a dropped line hands its script on",
            QByteArray(fifteen).replace("KNOT", " ") + fourteen, carried);
        row("a blank script is stored too",
            fifteen + QByteArray(fifteen).replace("NODE", " ") + fourteen, record);
        row("the same line again after one that is not ASCII",
            fifteen + QByteArray(fifteen).replace("x", "\xC3\xA4") + fifteen,
            record + QString(record).replace(QLatin1Char('x'), QChar(0xE4)) + record);
        row("captions",
            QByteArray("1|0|0|@ND1 Nodes|&BAS Fallback|1 A&BAS Fallback| |0| |0|0| |0|g|e\n"),
            "1,0,0 [Nodes/Base/Pre  Base I] {   @ND1}{   &BAS}{1 A&BAS}"
            "  0 :-1,0,1 0 0  0 <g> <e>\n");
        row("captions without a text",
            QByteArray("1|0|0|@ND1|&XXX Fallback|_ _&XXX Rest| |0| |0|0| |0|g|e\n"),
            "1,0,0 [/Fallback/Rest] {   @ND1}{   &XXX}{_ _&XXX}"
            "  0 :-1,0,1 0 0  0 <g> <e>\n");
    }

    /// A byte order mark before each line makes the line non-ASCII, but does not change the result.
    void records()
    {
        QFETCH(QByteArray, file);
        QTEST(text(testsupport::parse(file)), "expected");
        const QByteArray mark = "\xEF\xBB\xBF";
        QTEST(text(testsupport::parse(mark + file.replace("\n", "\n" + mark))), "expected");
    }

    void linesAreThoseOfQt()
    {
        QByteArray file;
        for (int length = 0; length<2100; length += length> 1015 && length < 1030 ? 1 : 37)
            file += QByteArray(length, 'a') + QByteArray(length % 5, '\0') + "\r\n";
        file = file.repeated(5) + "last";
        QBuffer blocks(&file), device(&file);
        blocks.open(QIODevice::ReadOnly);
        device.open(QIODevice::ReadOnly);
        plib::CatalogueLines lines(blocks);
        char line[1024];
        for (qint64 length; (length = device.readLine(line, sizeof line)) > 0;) {
            QVERIFY(lines.next());
            QCOMPARE(QByteArray(lines.bytes(), lines.length()), QByteArray(line, int(length)));
            QCOMPARE(lines.isWhole(), line[length - 1] == '\n' || device.atEnd());
        }
        QVERIFY(!lines.next());
    }

    /// Word, ctrl, rowClass and rowMark.
    void caseWords()
    {
        for (const char* expected :
             {"LAST-L:1,1,1", "last-x:1,0,1", "last-c:1,2,1", "last-e:1,3,2", "last-e-l:1,0,1",
              "last -l:-1,1,1", "desi-e:8,3,3", "desi:8,0,1", "sngl:0,0,1", "nonl-l:0,1,1",
              "supp:0,0,1", "eige:0,0,1", "zrt1:0,0,1", "zrt2:0,0,1", "beam-l:-10,1,1",
              "dsln:-10,0,1", "none:-1,0,1", "-e:-1,3,2"}) {
            const QByteArray word = QByteArray(expected).split(':')[0];
            const QByteArray file = "1|0|0|A|B|C|x|0|" + word + "|0|0|x|0|g|e\n";
            QVERIFY2(text(testsupport::parse(file)).contains(QLatin1String(expected)), expected);
        }
    }

    void loadsOncePerLanguage()
    {
        const auto fail = [](const QString& title, const QString&) { QFAIL(qPrintable(title)); };
        testsupport::writeFile(m_texts->path("graphicaloutput.data"),
                               testsupport::line("A|B|&BAS", " "));
        plib::Catalogue catalogue;
        QVERIFY(plib::loadCatalogue(catalogue, vkd::Language::English, fail));
        QVERIFY(plib::loadCatalogue(catalogue, vkd::Language::English, fail));
        QCOMPARE(int(catalogue.list.size()), 1);
        vkd_lib_setvalue(102, 0);
        // The records of the first language are deliberately preserved.
        QVERIFY(plib::loadCatalogue(catalogue, vkd::Language::German, fail));
        QCOMPARE(int(catalogue.list.size()), 2);
        QCOMPARE(catalogue.list[0].title3, QStringLiteral("Base"));
        QCOMPARE(catalogue.list[1].title3, QStringLiteral("Grund"));
    }

    void findings_data()
    {
        const Columns<QByteArray, QString> row("file", "expected");
        const QByteArray good = "1|0|0|@A__ a|@B__ b|@C__ c| |0| |0|0| |0|g|e\n";
        row("nothing wrong", "// x\n\n" + good, "");
        row("too few", "1|2|3\n", "1: dropped: 3 columns, 15 are required\n");
        row("German blank", QByteArray(good).replace("|g|", "| |"),
            "1: dropped: the German script line is blank\n");
        row("English blank", "\n" + QByteArray(good).replace("|e\n", "| \n"),
            "2: dropped: the English script line is blank\n");
        row("adjacent bars", QByteArray(good).replace("|0|g|e", "||0|g|e"),
            "1: adjacent bars count as one: the following columns are shifted\n");
        row("script carried over", good + "1|0|0|@A__ a|@B__ b|@D__ d| |0| |0|0| |0|g\n",
            "2: no English script line: the one in line 1 is used\n");
        row("unknown tag", QByteArray(good).replace("c| |0|", "c|Quod|0|"),
            "1: unknown content tag \"Quod\": the plot is shown for every model\n");
        row("unknown word", QByteArray(good).replace("c| |0| |", "c| |0|lost-l|"),
            "1: unknown case word \"lost-l\": the plot has no load cases\n");
        row("no suffix", QByteArray(good).replace("c| |0| |", "c| |0|last-x|"),
            "1: \"last-x\" does not end in -l, -c or -e: the plot never produces a line\n");
        row("empty caption", QByteArray(good).replace("@C__ c", "@C__"),
            "1: never shown: a caption is empty\n");
        row("no page", QByteArray(good).replace("1|0|0|", "x|0|0|"),
            "1: never shown: no kind of page is specified\n");
        row("called as its parent", QByteArray(good).replace("__ c", "__ b"),
            "1: the plot is called \"b\" like the level above: later plots are added below it\n");
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
            "1: longer than 1023 bytes: the rest is read as a separate line\n"
            "1: dropped: 1 columns, 15 are required\n");
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
        }
    }

private:
    std::unique_ptr<testsupport::Texts> m_texts;
};

PLIB_TEST_MAIN(TestCatalogueParser)
#include "tst_catalogueParser.moc"
