#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <script/lineOrigins.h>
#include <tree/selectionText.h>

using plib::OutputNode;
using testsupport::line;

Q_DECLARE_METATYPE(testsupport::Rows)

static QString script(OutputNode* root, bool english, int progname, int kind)
{
    std::vector<QString> lines{QStringLiteral("left over")};
    const int count =
        plib::collectScriptLines(root, lines, plib::keywordsIf(english), progname, [kind] {
            return kind;
        }).count;
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    return count == int(lines.size()) ? text : QStringLiteral("wrong count");
}

class TestScriptLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        const Columns<QByteArray, testsupport::Rows, int, QString> row("catalogue", "rows", "kind",
                                                                       "expected");
        const auto alone = [](int view, const char* text) {
            return line("A|B|C", " ", 0, view, "g", text);
        };
        const auto bound = [](const char* text) {
            return line("A|B|C", "last-l", 2, 0, "g", text);
        };
        const auto labels = [](std::initializer_list<std::pair<int, const char*>> list) {
            testsupport::Rows rows;
            for (const auto& label : list)
                rows.push_back({1, label.first, QString::fromLatin1(label.second)});
            return rows;
        };
        row("alone", alone(0, "e"), {}, 0, "e\n");
        row("view by kind of system, spatial", alone(1, "e"), {}, 0, "VIEW EG3\ne\n");
        row("view by kind of system, 9 is not 0", alone(1, "e"), {}, 9, "VIEW EGX\ne\n");
        row("views", alone(2, "a") + alone(2, "b") + alone(3, "c") + alone(9, "d") + alone(0, "e"),
            {}, 0, "VIEW EGX\na\nb\nVIEW EG3\nc\nVIEW \nd\ne\n");
        row("cases", bound("e"), testsupport::rows(2), 0, "LC 1 DESI 1\ne\nLC 2 DESI 2\ne\n");
        row("a case in a row is set once", bound("a") + bound("b"), testsupport::rows(1), 0,
            "LC 1 DESI 1\na\nb\n");
        row("case 0 and negative ones", bound("e") + alone(2, "x") + bound("f"),
            labels({{0, "0 : a"}, {-4, "-4 : b"}}), 0, "e\nVIEW EGX\nx\nVIEW \nf\n");
        row("double picture", bound("e") + bound("f"), labels({{7, "7+9: text"}, {9, "9 : text"}}),
            0,
            "LC 7 DESI 7\nCOLO C14 -1 ; e ; AND \nLC 9 DESI 9\n"
            "COLO STAN ; COLO C13 -1 ; e UNIT LAST ; COLO STAN\ne\n"
            "LC 7 DESI 7\nCOLO C14 -1 ; f ; AND \nLC 9 DESI 9\n"
            "COLO STAN ; COLO C13 -1 ; f UNIT LAST ; COLO STAN\nf\n");
        row("the unit is that of the first plot below the caption, not the plot's own",
            line("A|B|X", "last-l", 0, 0, "g", "UNIT 1") + bound("e") +
                line("A|D|C", "last-l", 2, 0, "g", "UNIT"),
            labels({{7, "7+9: text"}}), 0,
            "LC 7 DESI 7\nCOLO C14 -1 ; e ; AND \nLC 9 DESI 9\n"
            "COLO STAN ; COLO C13 -1 ; e ; COLO STAN\n"
            "LC 7 DESI 7\nCOLO C14 -1 ; UNIT ; AND \nLC 9 DESI 9\n"
            "COLO STAN ; COLO C13 -1 ; UNIT ; COLO STAN\n");
        row("a plot with rows that stands alone too follows its rows",
            line("A|B|B", "last-l", 2) + line("A|B|C", " ", 0, 0, "g", "f"), testsupport::rows(1),
            0, "LC 1 DESI 1\ne\ne\n");
        row("also where only some of its rows are checked",
            line("A|B|B", "last-l") + line("A|B|C", " ") + line("A|B|D", "last-l"),
            testsupport::rows(1), 0, "LC 1 DESI 1\ne\ne\n");
    }

    void lines()
    {
        QFETCH(QByteArray, catalogue);
        QFETCH(testsupport::Rows, rows);
        QFETCH(int, kind);
        QFETCH(QString, expected);
        OutputNode root;
        testsupport::build(&root, testsupport::parse(catalogue), rows);
        QCOMPARE(script(&root, true, 1, kind), expected);
        QCOMPARE(script(&root, true, 222, kind), expected);
    }

    void german()
    {
        OutputNode root;
        testsupport::build(&root, testsupport::parse(line("A|B|C", "last-l", 2, 1, "g", "UNIT")),
                           {{1, 7, QStringLiteral("7+9: text")}});
        QCOMPARE(script(&root, false, 1, 0),
                 QStringLiteral("BEOB EG3\nLF 7 BEME 7\nFARB F14 -1 ; g ; UND \nLF 9 BEME 9\n"
                                "FARB STAN ; FARB F13 -1 ; g UNIT LAST ; FARB STAN\n"));
    }

    void splitPage()
    {
        OutputNode root;
        testsupport::build(
            &root,
            testsupport::parse(line("A|B|C", "last-l", 2, 0, "g", "a $(LFNR) $(LFNR) $(lfnr)")),
            {{1, 12, QStringLiteral("12+14: x")}, {1, 2147483647, QStringLiteral("y")}});
        QCOMPARE(script(&root, true, 122, 0),
                 QStringLiteral("a 1000012 1000012 $(lfnr)\na 2148483647 2148483647 $(lfnr)\n"));
    }

    /// The lines of a caption or a plot are adjacent, and each line belongs to one plot or row.
    void origins()
    {
        OutputNode root;
        testsupport::build(&root,
                           testsupport::parse(line("A|B|B", "last-l", 2, 2, "g", "e") +
                                              line("A|B|C", " ", 0, 3, "g", "f") +
                                              line("A|D|E", " ", 0, 0)),
                           {{1, 7, QStringLiteral("7+9: a")},
                            {1, -4, QStringLiteral("-4")},
                            {1, 9, QStringLiteral("9")}});
        std::vector<QString> lines;
        const plib::LineOrigins origins =
            plib::collectScriptLines(&root, lines, plib::Keywords::English, 1, [] { return 0; });
        QCOMPARE(origins.plots, 2); // the second record reuses the first plot
        QCOMPARE(origins.pictures, 4); // none for the row with a negative number
        QStringList found;
        for (int i = -1; i <= origins.count; ++i) {
            const OutputNode* item = plib::itemOfLine(&root, origins, i);
            found << (item ? item->text(0) : QStringLiteral("none"));
        }
        const OutputNode* a = root.child(0);
        const OutputNode* b = a->child(0);
        const OutputNode* plot = b->child(0);
        const OutputNode* const items[] = {a, b, plot, plot->child(0), plot->child(1), a->child(1)};
        for (const OutputNode* item : items) {
            const plib::LineRange range = plib::linesOfItem(&root, origins, item);
            found << QStringLiteral("%1+%2").arg(range.first).arg(range.count);
        }
        QCOMPARE(found.join(QLatin1Char(' ')),
                 QStringLiteral("none 7+9: a 7+9: a 7+9: a 7+9: a 7+9: a 9 B E E none "
                                "0+9 0+7 0+7 0+5 5+0 7+2"));
    }

    void treesWithoutItems()
    {
        OutputNode root;
        QCOMPARE(script(&root, true, 1, 0), QString());
        root.addChild(QStringLiteral("No Entries in database!"))->plain = true;
        QCOMPARE(script(&root, true, 1, 0), QString());
    }

    void secondNumber()
    {
        const std::pair<const char*, int> labels[] = {
            {"", -1},
            {"12 : Wind", -1},
            {"12+14: Wind", 14},
            {"12 + 14 : Wind", 14},
            {"12 : a+14", -1},
            {"1+2", 2},
            {"12+345", 34}, // without a colon, only five characters count
            {"1+2+3:", -1},
            {"1+:", -1},
            {"1+x:", -1},
            {"1+-5:", -5},
            {"1e+06 : x", 6}, // the label of row 1000000
            {":+7", -1},
            {"+7", 7},
        };
        for (const auto& [label, number] : labels)
            QCOMPARE(std::make_pair(label, plib::secondNumber(QString::fromLatin1(label))),
                     std::make_pair(label, number));
    }

    void rowLabel()
    {
        QCOMPARE(plib::rowLabel(3.9, {}), QStringLiteral("3.9 "));
        QCOMPARE(plib::rowLabel(1, QStringLiteral(" ")), QStringLiteral("1 :  "));
        QCOMPARE(plib::rowLabel(123456789, QStringLiteral("a")), QStringLiteral("1.23457e+08 : a"));
    }
};

PLIB_TEST_MAIN(TestScriptLines)
#include "tst_scriptLines.moc"
