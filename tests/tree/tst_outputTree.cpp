#include "CatalogueTestSupport.h"
#include "TestSupport.h"

using plib::OutputNode;
using testsupport::line;

class TestOutputTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tree_data()
    {
        const Columns<QByteArray, int, QString> row("catalogue", "rowCount", "expected");
        row("captions are shared", line("A|B|C", " ") + line("A|B|D", " "), 0,
            "[x] A\n  [x] B\n    [x] C\n    [x] D\n");
        row("order of first appearance",
            line("B|b|1", " ") + line("A|a|2", "last") + line("B|c|3", "last"), 0,
            "[-] B\n  [x] b\n    [x] 1\n  [ ] c\n    [ ] 3\n[ ] A\n  [ ] a\n    [ ] 2\n");
        row("the same three captions are two plots", line("A|B|C", "last") + line("A|B|C", " "), 0,
            "[-] A\n  [-] B\n    [ ] C\n    [x] C\n");
        row("a plot called as its parent is used again",
            line("A|B|B", "last-l", 1) + line("A|B|C", "sngl-l"), 2,
            "[-] A\n  [-] B\n    [-] B\n      [x] 1 : a\n      [ ] 2 : b\n      [ ] 1 : a\n"
            "      [ ] 2 : b\n");
        row("used again it checks the rows it has", line("A|B|B", "last-l") + line("A|B|C", " "), 2,
            "[x] A\n  [x] B\n    [x] B\n      [x] 1 : a\n      [x] 2 : b\n");
        row("a new row counts as a change", line("A|B|B", " ") + line("A|B|C", "last-l"), 1,
            "[ ] A\n  [ ] B\n    [ ] B\n      [ ] 1 : a\n");
        row("preselect 1", line("A|B|C", "last-l", 1), 3,
            "[-] A\n  [-] B\n    [-] C\n      [x] 1 : a\n      [ ] 2 : b\n      [ ] 3 : c\n");
        row("preselect 2", line("A|B|C", "last-c", 2), 2,
            "[x] A\n  [x] B\n    [x] C\n      [x] 1 : a\n      [x] 2 : b\n");
        row("preselect 3", line("A|B|C", "desi-c", 3), 1,
            "[x] A\n  [x] B\n    [x] C\n      [x] 1 : a\n");
        row("preselect 4", line("A|B|C", "last-l", 4), 1,
            "[ ] A\n  [ ] B\n    [ ] C\n      [ ] 1 : a\n");
        row("no row of the kind, no class, no rows",
            line("A|B|C", "last-e", 2) + line("A|B|D", "last", 2), 1,
            "[ ] A\n  [ ] B\n    [ ] C\n    [ ] D\n");
    }

    void tree()
    {
        QFETCH(QByteArray, catalogue);
        QFETCH(int, rowCount);
        OutputNode root;
        testsupport::build(&root, testsupport::parse(catalogue), testsupport::rows(rowCount));
        QTEST(testsupport::treeText(&root), "expected");
    }

    void itemsContainTheScriptData()
    {
        const auto records = testsupport::parse(line("A|B|B", "desi-e", 0, 0, "g1", "e1") +
                                                line("A|B|C", "last-l", 0, 0, "g2", "e2"));
        OutputNode root;
        testsupport::build(&root, records,
                           {{1, 4, QStringLiteral("four")}, {2, 9, QStringLiteral("nine")}});
        const OutputNode* top = root.child(0);
        const OutputNode* plot = top->child(0)->child(0);
        QVERIFY(top->isExpanded() && top->child(0)->isExpanded() && !plot->isExpanded());
        QString items;
        for (const OutputNode* item :
             QList<const OutputNode*>{top, plot, plot->child(0), plot->child(1)})
            items += QStringLiteral("level %1, isLC %2, number %3, %4\n")
                         .arg(item->level)
                         .arg(item->isLC)
                         .arg(item->number)
                         .arg(item->record.scriptEnglish);
        // The rows have the record of the plot, not the record of the next line.
        QCOMPARE(items, QStringLiteral("level 0, isLC -1, number 0, e1\n"
                                       "level 2, isLC -1, number 0, e1\n"
                                       "level 3, isLC 3, number 9, e1\n"
                                       "level 3, isLC 3, number 4, e1\n"));
        QCOMPARE(plot->childCount(), 2);
    }

    void recordsWithoutScript()
    {
        auto records = testsupport::parse(line("A|B|B", " ") + line("A|B|C", "last-l"));
        records[0].scriptGerman.clear();
        records[0].scriptEnglish.clear();
        OutputNode root;
        testsupport::build(&root, records, testsupport::rows(1));
        // The first plot has been removed, so the second record creates a new plot.
        QCOMPARE(testsupport::treeText(&root), QStringLiteral("[ ] A\n  [ ] B\n    [ ] C\n"
                                                              "      [ ] 1 : a\n"));
        OutputNode other;
        records.resize(1);
        records[0].title2.clear();
        records[0].title3.clear();
        testsupport::build(&other, records, {});
        QCOMPARE(other.childCount(), 0);
    }
};

PLIB_TEST_MAIN(TestOutputTree)
#include "tst_outputTree.moc"
