#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <tree/checkStates.h>
#include <tree/selectionText.h>

using plib::OutputNode;
using testsupport::line;

/// Returns a tree with two plots that have identifiers and three rows each, and two plots with
/// plain captions.
static QByteArray catalogue()
{
    return line("@A__ A|@B__ B|@C__ C", "last-l") + line("@A__ A|@B__ B|@D__ D", "last-l") +
           line("E|F|G", " ") + line("E|F|H", " ");
}

static void makeTree(OutputNode* root)
{
    testsupport::build(root, testsupport::parse(catalogue()), testsupport::rows(3));
}

/// Returns the states of all items as one word, from top to bottom.
static QString states(const OutputNode* parent)
{
    QString word;
    for (int i = 0; i < parent->childCount(); ++i)
        word += QLatin1Char(".-x"[parent->child(i)->checkState(0)]) + states(parent->child(i));
    return word;
}

static void setBranch(OutputNode* node, Qt::CheckState state)
{
    node->setCheckState(0, state);
    for (int i = 0; i < node->childCount(); ++i)
        setBranch(node->child(i), state);
}

/// Tests building a tree, and storing and restoring the user's selection in it.
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
                         .arg(item->record().scriptEnglish);
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

    void storesAndRestores()
    {
        OutputNode root;
        makeTree(&root);
        OutputNode* plots = root.child(0)->child(0);
        setBranch(plots->child(0)->child(0), Qt::Checked);
        setBranch(plots->child(0)->child(2), Qt::Checked);
        setBranch(plots->child(1), Qt::Checked);
        setBranch(root.child(1)->child(0)->child(0), Qt::Unchecked);
        plib::settleBranch(&root);
        const QString text = plib::selectionText(&root);
        QCOMPARE(text, QStringLiteral(
                           "\nPartially:@A__   @B__   @C__ : 1,3,\nChecked:@A__   @B__   @D__\n"
                           "Unchecked:001    002    003\nChecked:001    002    003\n"));
        OutputNode fresh;
        makeTree(&fresh);
        plib::applySelection(&fresh, text);
        // Plain captions share an identifier, so the last line applies only to the last plot.
        QCOMPARE(states(&fresh), states(&root));
        QCOMPARE(plib::selectionText(&fresh), text);
    }

    void apply_data()
    {
        const Columns<QString, QString> row("text", "expected");
        // A, B, C and its rows, D and its rows, E, F, G, H
        row("everything else is unchecked", "Checked:nothing like it", "...... .... ....");
        row("top level", "Checked:@A__", "xxxxxx xxxx ....");
        row("later lines win", "Checked:@A__\nUnchecked:@A__   @B__   @D__", "--xxxx .... ....");
        row("a caption over its plots", "Checked:@A__   @B__   @C__\nUnchecked:@A__   @B__",
            "...... .... ....");
        row("blanks around the identifier", "Checked:  @A__   @B__ ", "xxxxxx xxxx ....");
        row("empty parts are dropped", ":Checked::@A__\n\n", "xxxxxx xxxx ....");
        row("the last of equal identifiers", "Checked:001    002    003", "...... .... --.x");
        row("rows by number", "Partially:@A__   @B__   @C__ : 2, 3 ,", "---.xx .... ....");
        row("all rows by number", "Partially:@A__   @B__   @C__ : 3,2,1", "--xxxx .... ....");
        row("a row that is not there", "Partially:@A__   @B__   @C__ : 7,", "...... .... ....");
        row("no number is 0 and meets a plot", "Partially:@A__   @B__ : x", "--.... xxxx ....");
        row("no third part", "Checked:@A__\nPartially:@A__   @B__", "xxxxxx xxxx ....");
        row("partially unchecks what it does not name",
            "Checked:@A__\nPartially:@A__   @B__   @C__ : 1,", "---x.. xxxx ....");
        row("unknown words and short lines are skipped",
            "checked:@A__\nChecked\n:\nERROR CASE\nNo:@A__\nChecked:@A__   @B__   @D__",
            "--.... xxxx ....");
        row("a comma without a number", "Partially:@A__   @B__ : 7,", "...... .... ....");
        row("the number after the identifier is not read", "Checked:@A__:%2", "xxxxxx xxxx ....");
    }

    void apply()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        OutputNode root;
        makeTree(&root);
        plib::applySelection(&root, text);
        QCOMPARE(states(&root), expected.remove(QLatin1Char(' ')));
    }

    void emptyTextLeavesTheTree()
    {
        OutputNode root;
        makeTree(&root);
        const QString before = states(&root);
        plib::applySelection(&root, QString());
        plib::applySelection(&root, QStringLiteral("\n\n"));
        QCOMPARE(states(&root), before);
    }

    void foreignItems()
    {
        OutputNode root;
        root.addChild(QStringLiteral("No Entries in database!"))->plain = true;
        root.child(0)->setCheckState(0,
                                     Qt::PartiallyChecked); // a careless loop would change it
        plib::applySelection(&root, QStringLiteral("Checked:001"));
        QCOMPARE(root.child(0)->checkState(0), Qt::PartiallyChecked);
        QCOMPARE(plib::selectionText(&root), QStringLiteral("\n"));

        OutputNode leaves; // states and levels that the library's trees do not have
        OutputNode* row = leaves.addChild(QString());
        plib::GraphicalOutputRecord record;
        record.id1 = QStringLiteral("   @ROW");
        row->setRecord(record);
        row->number = 5;
        OutputNode* below = row->addChild(QString());
        below->setRecord(plib::GraphicalOutputRecord());
        below->setRecord(row->record());
        QCOMPARE(&below->record(), &row->record()); // shared, not copied
        row->removeChild(below);
        leaves.addChild(QString())->setCheckState(0, Qt::PartiallyChecked);
        QCOMPARE(plib::selectionText(&leaves), QStringLiteral("\nUnchecked:@ROW:%2\nERROR CASE\n"));
    }

    void numbersAreReadAsQtDoes()
    {
        const QString text =
            QStringLiteral("0,007,,123456789,1234567890,2147483647,2147483648,99999999999, 5\t,+5,"
                           "-5,5x, ,1.0,1e3,\u0663,\u00a05,\u22125,12");
        QVector<int> expected;
        for (const QString& number : text.split(QLatin1Char(','), Qt::SkipEmptyParts))
            expected.append(number.toInt());
        QCOMPARE(plib::selectionNumbers(text), expected);
    }
};

PLIB_TEST_MAIN(TestOutputTree)
#include "tst_outputTree.moc"
