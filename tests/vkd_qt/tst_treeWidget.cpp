#include "WidgetTestSupport.h"

#include <VKD_QT_Menu.h>
#include <VKD_QT_TreeWidget.h>

#include <QHeaderView>
#include <QRandomGenerator>

namespace {
constexpr int NoBox = -1;
using Items = QVector<QTreeWidgetItem*>;

int stateOf(const QTreeWidgetItem* item)
{
    const QVariant state = item->data(0, Qt::CheckStateRole);
    return state.isValid() ? state.toInt() : NoBox;
}

/// Returns the nearest items with check boxes below the item.
Items boxesRightBelow(const QTreeWidgetItem* item)
{
    Items boxes;
    for (int i = 0; i < item->childCount(); ++i)
        boxes += stateOf(item->child(i)) == NoBox ? boxesRightBelow(item->child(i))
                                                  : Items{item->child(i)};
    return boxes;
}

/// The expected states of a tree, computed by counting after each change.
struct Expected
{
    explicit Expected(const Items& all)
    {
        for (QTreeWidgetItem* item : all)
            states[item] = stateOf(item);
    }

    void derive(QTreeWidgetItem* item)
    {
        QVector<int> below;
        for (QTreeWidgetItem* box : boxesRightBelow(item))
            below << states[box];
        if (states[item] == NoBox || below.isEmpty())
            return;
        const bool isOne = below.count(below.first()) == below.size();
        states[item] = isOne ? below.first() : int(Qt::PartiallyChecked);
    }

    void step(QTreeWidgetItem* item, int state)
    {
        states[item] = state;
        if (state != Qt::PartiallyChecked)
            for (QTreeWidgetItem* box : boxesRightBelow(item))
                step(box, state);
        for (QTreeWidgetItem* above = item->parent(); above; above = above->parent())
            derive(above);
    }

    QHash<QTreeWidgetItem*, int> states;
};

/// Adds each item as a child of an earlier item. Some items have no check box.
Items fill(QTreeWidget* tree, QRandomGenerator& random, int count)
{
    Items all;
    for (int i = 0; i < count; ++i) {
        const int parent = random.bounded(-2, qMax(1, i));
        auto item =
            parent < 0 || i == 0 ? new QTreeWidgetItem(tree) : new QTreeWidgetItem(all[parent]);
        item->setText(0, QString::number(i));
        if (random.bounded(5))
            item->setCheckState(0, Qt::Unchecked);
        all << item;
    }
    return all;
}

/// A caption with two plots with three rows each. All items are unchecked, and the automatic update
/// is enabled.
struct Catalogue
{
    Catalogue()
    {
        tree.setColumnCount(2);
        top = add(tree.invisibleRootItem());
        for (int plot = 0; plot < 2; ++plot) {
            add(top);
            for (int row = 0; row < 3; ++row)
                add(top->child(plot));
        }
        tree.setAutomaticCheckStateUpdate(true);
    }

    static QTreeWidgetItem* add(QTreeWidgetItem* parent)
    {
        auto item = new QTreeWidgetItem(parent, {QStringLiteral("a"), QStringLiteral("b")});
        item->setCheckState(0, Qt::Unchecked);
        return item;
    }

    VKD_QT_TreeWidget tree{nullptr, "tree"};
    QTreeWidgetItem* top;
};

} // namespace

class tst_treeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statesFollowEachOther()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 40; ++round) {
            VKD_QT_TreeWidget tree;
            const Items all = fill(&tree, random, 5 + round);
            Expected expected(all);
            tree.setAutomaticCheckStateUpdate(true);
            for (int step = 0; step < 60; ++step) {
                QTreeWidgetItem* item = all[random.bounded(all.size())];
                const int before = stateOf(item);
                const bool byUser = random.bounded(2);
                const int toggled = before == Qt::Checked ? Qt::Unchecked : Qt::Checked;
                const int state = byUser ? toggled : random.bounded(3);
                if (before == NoBox || state == before)
                    continue;
                tree.setCurrentItem(item);
                if (byUser)
                    QTest::keyClick(&tree, Qt::Key_Space);
                else
                    item->setCheckState(0, Qt::CheckState(state));
                expected.step(item, state);
                QCOMPARE(Expected(all).states, expected.states);
            }
        }
    }

    void oneWordForEachStep()
    {
        Catalogue catalogue;
        QSignalSpy settled(&catalogue.tree, &VKD_QT_TreeWidget::checkStatesChanged);
        Items changed;
        QVector<int> seen;
        connect(&catalogue.tree, &QTreeWidget::itemChanged, this, [&](QTreeWidgetItem* item) {
            changed << item;
            seen << stateOf(catalogue.top) << stateOf(item->child(2)) << settled.size();
        });
        QTreeWidgetItem* plot = catalogue.top->child(1);
        plot->setCheckState(0, Qt::Checked);
        QCOMPARE(seen, (QVector<int>{Qt::PartiallyChecked, Qt::Checked, 0}));
        QCOMPARE(changed, Items{plot});
        QCOMPARE(settled.size(), 1);
        plot->setCheckState(0, Qt::Checked); // no change
        catalogue.tree.setAutomaticCheckStateUpdate(false);
        plot->setCheckState(0, Qt::Unchecked);
        QCOMPARE(settled.size(), 1);
        QCOMPARE(stateOf(plot->child(0)), int(Qt::Checked));
        QCOMPARE(changed.size(), 2);
    }

    void spaceBesideTheCheckBox()
    {
        Catalogue catalogue;
        catalogue.tree.setCurrentItem(catalogue.top, 1);
        QTest::keyClick(&catalogue.tree, Qt::Key_Space);
        QCOMPARE(stateOf(catalogue.top->child(0)), int(Qt::Checked));
        catalogue.top->setFlags(Qt::ItemIsEnabled); // a check box that the user cannot change
        QTest::keyClick(&catalogue.tree, Qt::Key_Space);
        QCOMPARE(stateOf(catalogue.top), int(Qt::Checked));
    }

    /// Changes to text or flags do not propagate states, not even in a tree with inconsistent
    /// states.
    void otherDataThanStates()
    {
        Catalogue catalogue;
        catalogue.tree.setAutomaticCheckStateUpdate(false);
        catalogue.top->setCheckState(0, Qt::Checked);
        catalogue.tree.setAutomaticCheckStateUpdate(true);
        QSignalSpy settled(&catalogue.tree, &VKD_QT_TreeWidget::checkStatesChanged);
        catalogue.top->setText(0, QStringLiteral("other"));
        catalogue.top->setDisabled(true);
        QCOMPARE(stateOf(catalogue.top->child(0)), int(Qt::Unchecked));
        QCOMPARE(settled.size(), 0);
    }

    /// Includes labels that become visible when a branch is expanded or the tree is scrolled.
    void longTextsCanBeReached()
    {
        Catalogue catalogue;
        VKD_QT_TreeWidget& tree = catalogue.tree;
        tree.setColumnCount(1);
        tree.setColumnFitsTexts();
        tree.resize(200, 100);
        tree.show();
        QTRY_COMPARE(tree.header()->sectionSize(0), tree.viewport()->width());
        const auto isShownWhole = [&](QTreeWidgetItem* item) {
            const int width = tree.fontMetrics().horizontalAdvance(item->text(0));
            return width > tree.viewport()->width() && tree.visualItemRect(item).width() > width;
        };
        catalogue.top->child(0)->child(0)->setText(0, QString(60, QLatin1Char('m')));
        catalogue.top->child(1)->child(2)->setText(0, QString(90, QLatin1Char('m')));
        tree.expandAll();
        QTRY_VERIFY(isShownWhole(catalogue.top->child(0)->child(0)));
        QVERIFY(!isShownWhole(catalogue.top->child(1)->child(2)));
        tree.scrollToBottom();
        QTRY_VERIFY(isShownWhole(catalogue.top->child(1)->child(2)));
        tree.clear();
        tree.addTopLevelItem(new QTreeWidgetItem({QStringLiteral("a")}));
        QTRY_COMPARE(tree.header()->sectionSize(0), tree.viewport()->width());
    }

    void menu()
    {
        Catalogue catalogue;
        VKD_QT_Menu shown(&catalogue.tree, "menu");
        QAction* open = catalogue.tree.addExpandAll(&shown);
        QAction* close = catalogue.tree.addCollapseAll(&shown);
        QCOMPARE(open->text() + close->text(), QStringLiteral("Alle aufklappenAlle zuklappen"));
        open->trigger();
        QVERIFY(catalogue.top->isExpanded() && catalogue.top->child(1)->isExpanded());
        catalogue.tree.setCurrentItem(catalogue.top->child(1)->child(0));
        close->trigger();
        QVERIFY(!catalogue.top->isExpanded() && !catalogue.top->child(1)->isExpanded());
        QCOMPARE(catalogue.tree.currentItem(), catalogue.top);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_treeWidget)
#include "tst_treeWidget.moc"
