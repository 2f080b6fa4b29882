#include "CatalogueTestSupport.h"
#include "WidgetTestSupport.h"

#include <catalogue/Catalogue.h>
#include <search/PlotKeys.h>
#include <search/searchHits.h>
#include <tree/checkStates.h>
#include <tree/GraphicalOutputTreeWidget.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>

#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

using plib::OutputNode;
using testsupport::find;
using testsupport::line;

namespace {
const QByteArray Catalogue =
    line("Results|Slabs|Moment in y", "last-l") + line("Results|Slabs|Moment in x", "last-l") +
    line("Results|Beams|Shear", "last-l") + line("System|Kräfte|Straße", " ");

/// Returns the visible items as indented lines with check marks.
QString shown(const QTreeWidgetItem* parent, int depth = 0)
{
    QString text;
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* item = parent->child(i);
        if (!item->isHidden())
            text += QString(depth, QLatin1Char(' ')) + QLatin1Char(" -x"[item->checkState(0)]) +
                    item->text(0) + QLatin1Char('\n') +
                    (item->isExpanded() ? shown(item, depth + 1) : QString());
    }
    return text;
}
} // namespace

/// The page without its other fields.
class Desk : public QWidget
{
public:
    explicit Desk(VKD_H_PluginParameter* parameter)
        : tree(new GraphicalOutputTreeWidget(this, 1, parameter, "m_list"))
    {
        auto column = new QVBoxLayout(this);
        column->addWidget(tree);
        new plib::PlotKeys(this, tree, column);
        tree->setUsedNumbersAndNames(testsupport::rows(12));
        resize(300, 200);
        show();
        tree->setFocus();
        QApplication::setActiveWindow(this);
    }

    QLineEdit* words() const { return testsupport::find<QLineEdit>(*this, "searchWords"); }
    QString count() const { return testsupport::find<QLabel>(*this, "searchCount")->text(); }
    QString items() const { return shown(tree->invisibleRootItem()); }

    GraphicalOutputTreeWidget* tree;
};

class TestPlotSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
        m_texts = std::make_unique<testsupport::Texts>("");
        m_doc = VKD_H_ZOBDoc::create(m_texts->path("p.zob"));
        m_parameter = std::make_unique<VKD_H_PluginParameter>(m_doc.get());
        plib::sharedCatalogue() = {};
        testsupport::writeFile(m_texts->path("graphicaloutput.data"), Catalogue);
    }

    void hits_data()
    {
        const Columns<QString, bool, QString> row("words", "checkedOnly", "expected");
        row("parts of words of all captions", "mome y RES", false, "Moment in y");
        row("not in any text", "slab 2:", false, "");
        row("rows of a plot", "2 : results sh", false, "Shear:1,11");
        row("a row and its plot", "in x 12", false, "Moment in x:11");
        row("umlaut", "Ä", false, "Straße");
        row("word with an umlaut", "kräfte", false, "Straße");
        row("umlaut without dots", "kraft STRASSE", false, "Straße");
        row("umlaut as two letters", "kraeft", false, "Straße");
        row("umlaut typed, other vowel", "strä", false, "");
        row("checked", "", true, "Moment in y:2,5|Straße");
        row("checked rows with a word", "6", true, "Moment in y:5");
    }

    void hits()
    {
        QFETCH(QString, words);
        QFETCH(bool, checkedOnly);
        OutputNode root;
        testsupport::build(&root, testsupport::parse(Catalogue), testsupport::rows(12));
        OutputNode* plot = root.child(0)->child(0)->child(0);
        for (int checked : {2, 5})
            plot->child(checked)->setCheckState(0, Qt::Checked);
        plib::settleBranch(root.child(0));
        QStringList found;
        plib::SearchIndex<OutputNode> index(&root);
        index.find(QStringList(QStringLiteral("1")), false); // an earlier search
        for (const auto& hits : index.find(plib::searchWords(words), checkedOnly)) {
            QStringList rows;
            for (int row : hits.rows)
                rows << QString::number(row);
            found << hits.plot->text(0) + (hits.isWhole ? QString() : QStringLiteral(":")) +
                         rows.join(QLatin1Char(','));
        }
        QTEST(found.join(QLatin1Char('|')), "expected");
    }

    /// Only what is shown is changed, and afterwards the tree looks as before.
    void typedWords()
    {
        Desk desk(m_parameter.get());
        QTreeWidgetItem* slabs = desk.tree->topLevelItem(0)->child(0);
        slabs->child(1)->setExpanded(true);
        desk.tree->topLevelItem(1)->setExpanded(false);
        desk.tree->setCurrentItem(slabs->child(1)->child(7));
        desk.tree->verticalScrollBar()->setValue(4);
        const QString before = desk.items();
        QTest::keyClicks(desk.tree, QStringLiteral("y")); // the focus moves to the search line
        QTest::keyClicks(desk.focusWidget(), QStringLiteral(" 12"));
        QCOMPARE(desk.items(), QStringLiteral(" Results\n  Slabs\n   Moment in y\n    12 : l\n"));
        QCOMPARE(desk.count(), QStringLiteral("Hit 1 of 1"));
        QSignalSpy changes(desk.tree, &GraphicalOutputTreeWidget::checkStatesChanged);
        desk.tree->setFocus();
        desk.tree->setCurrentItem(desk.tree->topLevelItem(0));
        QTest::keyClick(desk.tree, Qt::Key_Space);
        QCOMPARE(desk.items(), QStringLiteral("-Results\n -Slabs\n  -Moment in y\n   x12 : l\n"));
        QCOMPARE(changes.size(), 1);
        QTest::keyClick(desk.tree, Qt::Key_Delete);
        QCOMPARE(slabs->child(0)->checkState(0), Qt::Unchecked);
        const QPoint box(8, desk.tree->visualItemRect(slabs).height() / 2);
        QTest::mouseClick(desk.tree->viewport(), Qt::LeftButton, {},
                          desk.tree->visualItemRect(slabs).topLeft() + box);
        QCOMPARE(slabs->checkState(0), Qt::PartiallyChecked);
        desk.words()->setText(QStringLiteral("mom")); // matches plots with all their rows
        desk.tree->setCurrentItem(desk.tree->topLevelItem(0));
        for (const auto& [key, state] :
             {std::pair(Qt::Key_Space, Qt::Checked), {Qt::Key_Space, Qt::Unchecked}}) {
            QTest::keyClick(desk.tree, key);
            QCOMPARE(slabs->checkState(0), state);
            QCOMPARE(slabs->child(1)->child(11)->checkState(0), state);
            QVERIFY(!desk.tree->topLevelItem(0)->child(1)->checkState(0));
        }
        slabs->setCheckState(0, Qt::Checked); // by the program: everything
        QCOMPARE(slabs->child(1)->child(0)->checkState(0), Qt::Checked);
        slabs->setCheckState(0, Qt::Unchecked);
        QTest::keyClick(desk.tree, Qt::Key_Escape);
        QCOMPARE(desk.items(), before);
        QCOMPARE(desk.tree->currentItem(), slabs->child(1)->child(7));
        QCOMPARE(desk.tree->verticalScrollBar()->value(), 4);
        QVERIFY(!desk.words()->isVisible() && desk.tree->hasFocus());
    }

    void steps()
    {
        Desk desk(m_parameter.get());
        const QString before = desk.items();
        testsupport::trigger(desk, "findNextPlot"); // there is no search to continue
        desk.words()->setText(QStringLiteral("2 : slab"));
        QStringList rows;
        for (const auto& [key, modifier] : {std::pair(Qt::Key_Return, Qt::NoModifier),
                                            {Qt::Key_Return, Qt::NoModifier},
                                            {Qt::Key_Return, Qt::ShiftModifier},
                                            {Qt::Key_F3, Qt::ShiftModifier},
                                            {Qt::Key_F3, Qt::ShiftModifier},
                                            {Qt::Key_F3, Qt::NoModifier}}) {
            QTest::keyClick(desk.words(), key, modifier);
            rows << desk.count();
        }
        QCOMPARE(rows.join(QLatin1Char(' ')).remove(QLatin1String("Hit ")),
                 QStringLiteral("2 of 4 3 of 4 2 of 4 1 of 4 4 of 4 1 of 4"));
        desk.words()->setText(QStringLiteral("2 :"));
        desk.tree->setCurrentItem(desk.tree->topLevelItem(0)->child(1)); // F3 starts here
        QTest::keyClick(desk.words(), Qt::Key_F3);
        QCOMPARE(desk.count(), QStringLiteral("Hit 5 of 6"));
        // Plots with many rows are not expanded. The user expands one.
        desk.tree->setUsedNumbersAndNames(testsupport::rows(5000));
        desk.words()->setText(QStringLiteral("4999 slab"));
        desk.tree->topLevelItem(0)->child(0)->child(1)->setExpanded(true);
        QCOMPARE(desk.items().count(QLatin1Char('\n')), 6);
        desk.words()->setText(QStringLiteral("2 : slab"));
        // The tree is rebuilt with fewer rows and searched again.
        desk.tree->setUsedNumbersAndNames(testsupport::rows(3));
        QCOMPARE(desk.count(), QStringLiteral("Hit 1 of 2"));
        desk.words()->setText(QStringLiteral("nothing"));
        QCOMPARE(desk.items() + desk.count(), QStringLiteral("No hits"));
        QVERIFY(!desk.tree->currentItem()); // Space would check a hidden item
        QTest::keyClick(desk.words(), Qt::Key_F3);
        QTest::keyClick(desk.words(), Qt::Key_Escape);
        QCOMPARE(desk.count(), QString());
        QCOMPARE(desk.items(), before);
    }

    /// The buttons and the box of the search line do the same as its keys.
    void mouseInTheSearchLine()
    {
        Desk desk(m_parameter.get());
        testsupport::trigger(desk, "findPlots");
        QVERIFY(desk.words()->hasFocus());
        QTreeWidgetItem* plot = desk.tree->topLevelItem(0)->child(0)->child(1);
        for (int row : {4, 6})
            plot->child(row)->setCheckState(0, Qt::Checked);
        const auto checkedOnly = find<QCheckBox>(desk, "searchCheckedOnly");
        QVERIFY(!checkedOnly->geometry().intersects(desk.words()->geometry()));
        checkedOnly->click();
        QString counts = desk.count();
        for (const char* button : {"searchNext", "searchNext", "searchPrevious"}) {
            find<QToolButton>(desk, button)->click();
            counts += QLatin1Char('|') + desk.count();
        }
        QCOMPARE(counts, QStringLiteral("Hit 1 of 3|Hit 2 of 3|Hit 3 of 3|Hit 2 of 3"));
        find<QToolButton>(desk, "searchClose")->click();
        QVERIFY(!desk.words()->isVisible() && desk.tree->hasFocus());
        testsupport::trigger(desk, "findPlots");
        QVERIFY(!find<QCheckBox>(desk, "searchCheckedOnly")->isChecked());
    }

    /// A narrow page elides the text of the search bar, and its tree can be scrolled.
    void narrowPage()
    {
        Desk desk(m_parameter.get());
        testsupport::trigger(desk, "findPlots");
        const auto reminder = find<QLabel>(desk, "searchReminder");
        for (bool isNarrow : {true, false}) {
            desk.resize(isNarrow ? 50 : 600, 300);
            QCOMPARE(reminder->text() != reminder->accessibleName(), isNarrow);
            QTRY_COMPARE(desk.tree->horizontalScrollBar()->maximum() > 0, isNarrow);
        }
    }

    void searchFollowsTheLanguage()
    {
        m_texts = std::make_unique<testsupport::Texts>("0|ABC|Grund|Base\n");
        testsupport::writeFile(m_texts->path("graphicaloutput.data"), line("&ABC|B|C", " "));
        Desk desk(m_parameter.get());
        testsupport::trigger(desk, "findPlots");
        desk.words()->setText(QStringLiteral("grund"));
        QCOMPARE(desk.count(), QStringLiteral("No hits"));
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 0);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(desk.tree, &change);
        QCoreApplication::processEvents();
        QCOMPARE(desk.count(), QStringLiteral("Hit 1 of 1"));
    }

    void keysOfTheTree()
    {
        Desk desk(m_parameter.get());
        desk.tree->setContextMenuPolicy(Qt::CustomContextMenu);
        disconnect(desk.tree, &QWidget::customContextMenuRequested, nullptr, nullptr);
        QSignalSpy menus(desk.tree, &QWidget::customContextMenuRequested);
        QTreeWidgetItem* plot = desk.tree->topLevelItem(0)->child(0)->child(0);
        desk.tree->setCurrentItem(plot);
        QTest::keyClick(desk.tree, Qt::Key_Return);
        QVERIFY(plot->isExpanded());
        plot->child(3)->setCheckState(0, Qt::Checked);
        QTest::keyClick(desk.tree, Qt::Key_Delete);
        QCOMPARE(plot->checkState(0), Qt::Unchecked);
        QTest::keyClick(desk.tree, Qt::Key_F10, Qt::ShiftModifier);
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(desk.tree, &menuKey);
        QCOMPARE(menus.size(), 2);
        const QPoint place =
            desk.tree->viewport()->mapTo(desk.tree, desk.tree->visualItemRect(plot).bottomLeft());
        QCOMPARE(menus[0][0].toPoint(), place);
        QTest::keyClicks(desk.tree, QStringLiteral("-+* "));
        QVERIFY(!desk.findChild<QWidget*>(QStringLiteral("plotSearch")));
    }

private:
    std::unique_ptr<testsupport::Texts> m_texts;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    std::unique_ptr<VKD_H_PluginParameter> m_parameter;
};

PLIB_WIDGET_TEST_MAIN(TestPlotSearch)
#include "tst_plotSearch.moc"
