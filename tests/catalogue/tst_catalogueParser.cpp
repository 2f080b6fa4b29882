#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <captionText.h>
#include <Catalogue.h>
#include <CatalogueParser.h>
#include <vkd_lib_value.h>

#include <QBuffer>

using plib::GraphicalOutputRecord;

static QString text(const GraphicalOutputRecord& r)
{
    return QStringLiteral("%1,%2,%3 [%4/%5/%6] {%7}{%8}{%9}")
               .arg(QString::number(r.prog1), QString::number(r.prog2), QString::number(r.prog3),
                    r.title1, r.title2, r.title3, r.id1, r.id2, r.id3) +
           QStringLiteral(" %1 %2 %3:%4,%5,%6 %7 %8 %9")
               .arg(r.contentTag, QString::number(r.number7), r.caseWord, QString::number(r.ctrl),
                    QString::number(r.rowClass), QString::number(r.rowMark),
                    QString::number(r.preselect), QString::number(r.viewKind), r.text11) +
           QStringLiteral(" %1 <%2> <%3>\n")
               .arg(QString::number(r.systemMask), r.scriptGerman, r.scriptEnglish);
}

static QString text(const testsupport::Records& records)
{
    QString all;
    for (const GraphicalOutputRecord& record : records)
        all += text(record);
    return all;
}

/// The format told in Qt's own text functions, one line at a time, as slow as can be.
static testsupport::Records parseByQt(QByteArray bytes)
{
    testsupport::Records records;
    GraphicalOutputRecord r;
    const auto caption = [](const QString& f, int place, QString* title, QString* id) {
        *id = QStringLiteral("    00%1").arg(place);
        *title = f;
        if (!plib::isKeyText(f))
            return;
        const int prefix = plib::isKeyText(f.mid(3, 4)) ? 7 : 4;
        *id = prefix == 7 ? f.left(7) : QLatin1String("   ") + f.left(4);
        const QString found = plib::captionText(f);
        *title = (found.isEmpty() ? f.mid(prefix) : found).trimmed();
    };
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    char buffer[1024];
    for (qint64 length; (length = device.readLine(buffer, sizeof buffer)) > 0;) {
        const QString line = QString::fromUtf8(buffer, int(length));
        QStringList parts = line.split(QLatin1Char('|'), Qt::SkipEmptyParts);
        if (line.startsWith(QLatin1String("//")) || line.trimmed().isEmpty() || parts.size() < 14)
            continue;
        for (QString& part : parts)
            part = part.trimmed();
        r.prog1 = parts[0].toInt();
        r.prog2 = parts[1].toInt();
        r.prog3 = parts[2].toInt();
        caption(parts[3], 1, &r.title1, &r.id1);
        caption(parts[4], 2, &r.title2, &r.id2);
        caption(parts[5], 3, &r.title3, &r.id3);
        r.contentTag = parts[6];
        r.number7 = parts[7].toInt();
        r.caseWord = parts[8];
        r.preselect = parts[9].toInt();
        r.viewKind = parts[10].toInt();
        r.text11 = parts[11];
        r.systemMask = parts[12].toInt();
        r.scriptGerman = parts[13];
        r.scriptEnglish = parts.size() > 14 ? parts[14] : r.scriptEnglish;
        if (!r.scriptGerman.isEmpty() && !r.scriptEnglish.isEmpty())
            records.push_back(r);
    }
    return records;
}

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
        row("byte order mark", "\xEF\xBB\xBF" + fifteen, record);
        row("comment behind a mark", "\xEF\xBB\xBF//" + fifteen, {});
        row("sixteen parts", fifteen.chopped(1) + "|ignored\n", record);
        row("blanks around", QByteArray(fifteen).replace("|", " \t|\v "), record);
        row("no number is 0", QByteArray(fifteen).replace("3|0|0|A", "x|1e3|0x1|A"),
            QString(record).replace(0, 1, QLatin1Char('0')));
        row("adjacent bars shift", QByteArray("3|0|0|A|B|C||Node|7|last-l|1|1|x|0|KNOT|NODE\n"),
            record);
        row("fourteen parts first", fourteen, {});
        row("fourteen parts behind fifteen", fifteen + fourteen, record + carried);
        row("fourteen columns and a bar", fifteen + fourteen + "|\n", record);
        row("fourteen columns and a bar without line feed", fifteen + fourteen + "|",
            record + carried);
        row("a dropped line hands its script on",
            QByteArray(fifteen).replace("KNOT", " ") + fourteen, carried);
        row("a blank script is stored too",
            fifteen + QByteArray(fifteen).replace("NODE", " ") + fourteen, record);
        row("captions",
            QByteArray("1|0|0|@ND1 Nodes|&BAS Fallback|1 A&BAS Fallback| |0| |0|0| |0|g|e\n"),
            "1,0,0 [Nodes/Base/Pre  Base I] {   @ND1}{   &BAS}{1 A&BAS}"
            "  0 :-1,0,1 0 0  0 <g> <e>\n");
        row("captions without a text",
            QByteArray("1|0|0|@ND1|&XXX Fallback|_ _&XXX Rest| |0| |0|0| |0|g|e\n"),
            "1,0,0 [/Fallback/Rest] {   @ND1}{   &XXX}{_ _&XXX}"
            "  0 :-1,0,1 0 0  0 <g> <e>\n");
    }

    void records()
    {
        QFETCH(QByteArray, file);
        QTEST(text(testsupport::parse(file)), "expected");
    }

    void longLineIsCutAt1023Bytes()
    {
        const QByteArray line = "3|0|0|A|B|C|Node|7|last-l|1|1|x|0|KNOT|";
        const QByteArray second = "5|0|0|A|B|C|Node|7|last-l|1|1|x|0|KNOT|NODE";
        const QByteArray first = line + QByteArray(1023 - line.size(), 'E');
        const auto records = testsupport::parse(first + second + '\n');
        QCOMPARE(int(records.size()), 2);
        QCOMPARE(records[0].scriptEnglish.size(), 1023 - line.size());
        QCOMPARE(records[1].prog1, 5);
    }

    void caseWord_data()
    {
        // expected: ctrl, rowClass, rowMark
        const Columns<QByteArray, QVector<int>> columns("word", "expected");
        const auto row = [&columns](const char* word, int ctrl, int rowClass, int rowMark) {
            columns(word, word, {ctrl, rowClass, rowMark});
        };
        row("LAST-L", 1, 1, 1);
        row("last-x", 1, 0, 1);
        row("last-c", 1, 2, 1);
        row("last-e", 1, 3, 2);
        row("last-e-l", 1, 0, 1);
        row("last -l", -1, 1, 1); // the word is not trimmed inside
        row("desi-e", 8, 3, 3);
        row("desi", 8, 0, 1);
        row("sngl", 0, 0, 1);
        row("nonl-l", 0, 1, 1);
        row("supp", 0, 0, 1);
        row("eige", 0, 0, 1);
        row("zrt1", 0, 0, 1);
        row("zrt2", 0, 0, 1);
        row("beam-l", -10, 1, 1);
        row("dsln", -10, 0, 1);
        row("none", -1, 0, 1);
        row("-e", -1, 3, 2);
        row(" ", -1, 0, 1);
    }

    void caseWord()
    {
        QFETCH(QByteArray, word);
        const auto records = testsupport::parse("1|0|0|A|B|C| |0|" + word + "|0|0| |0|g|e\n");
        QCOMPARE(int(records.size()), 1);
        const QVector<int> actual{records[0].ctrl, records[0].rowClass, records[0].rowMark};
        QTEST(actual, "expected");
    }

    void agreesWithQtOnAnyBytes()
    {
        std::mt19937 random(20240229);
        // Parted by tabs, but for the tab and the zero.
        QList<QByteArray> pieces =
            QByteArray(
                "|\t|\t||\t\n\t\r\n\t \t\v\t\x1c\t//\t&BAS\t@ND1\t1 A&BAS\t12\t-7\t+3\t"
                "99999999999\tx\t\xC3\xA4\t\xC3\t\xEF\xBB\xBF\t\xC2\xA0\t\xC2\x85\t\xE2\x80\xA8\t"
                "\xF0\x9F\x98\x80\t\xFF")
                .split('\t');
        pieces << "\t" << QByteArray(1, '\0');
        int accepted = 0;
        for (int round = 0; round < 3000; ++round) {
            QByteArray file;
            for (int line = 0; line < 5; ++line) {
                const int columns = 13 + testsupport::below(random, 4);
                for (int column = 0; column < columns; ++column) {
                    for (int n = testsupport::below(random, 3); n >= 0; --n)
                        file += testsupport::below(random, 4)
                                    ? pieces[testsupport::below(random, pieces.size())]
                                    : QByteArray("ab");
                    file += '|';
                }
                file += testsupport::below(random, 3) ? "\n" : "";
            }
            auto records = testsupport::parse(file);
            accepted += int(records.size());
            for (GraphicalOutputRecord& record : records) { // told by caseWord, tested on their own
                record.ctrl = -1;
                record.rowClass = 0;
                record.rowMark = 1;
            }
            QCOMPARE(text(records), text(parseByQt(file)));
        }
        QVERIFY(accepted > 1000);
    }

    void loadsOncePerLanguage()
    {
        const auto fail = [](const QString& title, const QString&) { QFAIL(qPrintable(title)); };
        testsupport::writeFile(m_texts->path("graphicaloutput.data"),
                               testsupport::line("A|B|&BAS", " ", 0, 0, "g", "e"));
        plib::Catalogue catalogue;
        QVERIFY(plib::loadCatalogue(catalogue, 1, fail));
        QVERIFY(plib::loadCatalogue(catalogue, 1, fail));
        QCOMPARE(int(catalogue.list.size()), 1);
        vkd_lib_setvalue(102, 0);
        QVERIFY(plib::loadCatalogue(catalogue, 0,
                                    fail)); // keeps the first language in front, on purpose
        QCOMPARE(int(catalogue.list.size()), 2);
        QCOMPARE(catalogue.list[0].title3, QStringLiteral("Base"));
        QCOMPARE(catalogue.list[1].title3, QStringLiteral("Grund"));
    }

    void aFileOfCommentsIsLoaded()
    {
        testsupport::writeFile(m_texts->path("graphicaloutput.data"), "// nothing\n");
        plib::Catalogue catalogue;
        QVERIFY(plib::loadCatalogue(catalogue, 1, [](const QString&, const QString&) {}));
        QVERIFY(catalogue.list.empty());
        QCOMPARE(catalogue.catalogueLanguage, 1);
    }

private:
    std::unique_ptr<testsupport::Texts> m_texts;
};

PLIB_TEST_MAIN(TestCatalogueParser)
#include "tst_catalogueParser.moc"
