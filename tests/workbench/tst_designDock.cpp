#include "ProjectTest.h"
#include "window/choice/RowFilter.h"
#include "window/design/sharedGroupsQuestion.h"

#include <AnimatorView.h>

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTreeWidget>

using namespace windowtest;

namespace {
int markedRows(const QTreeWidget* list)
{
    int rows = 0;
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        rows += list->topLevelItem(row)->background(0).style() != Qt::NoBrush;
    return rows;
}
} // namespace

/// Tests the design parameters in their dock beside the model and the list of groups.
class tst_designDock : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void groupsUnderTheMouse()
    {
        const auto window = open("pick.zob");
        auto records = find<QTableView>(*window, "Records")->model();
        QCOMPARE(records->rowCount(), 53);
        QCOMPARE(records->headerData(52, Qt::Vertical).toString(), QStringLiteral("sigui [N/mm²]"));
        // The group under the mouse in the view is highlighted in the list.
        auto groups = find<QTreeWidget>(*window, "GroupList");
        auto view = find<QWidget>(*window, "AnimatorView");
        QTest::mouseMove(view, view->rect().center());
        QTRY_COMPARE(markedRows(groups), 1);
        QTest::mouseMove(view, {5, 5});
        QTRY_COMPARE(markedRows(groups), 0);
        // The group of the row under the mouse is highlighted in the view.
        const QImage unlit = view->grab().toImage();
        QTest::mouseMove(groups->viewport(),
                         groups->visualItemRect(groups->topLevelItem(2)).center());
        QVERIFY(view->grab().toImage() != unlit);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(groups->viewport(), &leave);
        QVERIFY(view->grab().toImage() == unlit);
    }

    /// The rows, the groups in the view and the list of groups follow each other.
    void rowsInTheView()
    {
        const auto window = open("pick.zob");
        auto groups = find<QTreeWidget>(*window, "GroupList");
        auto view = find<QWidget>(*window, "AnimatorView");
        const QImage unlit = view->grab().toImage();
        QWidget* dock = openDesign(*window);
        auto table = find<QTableWidget>(*dock, "table");
        find<QPushButton>(*dock, "btnNew")->click();
        const int newRow = table->rowCount() - 1;
        const QRect place = table->visualItemRect(table->item(newRow, 0));
        QVERIFY(table->viewport()->rect().contains(place.center()));
        // A right click, which opens the menu, does not change the row to which it adds groups.
        QTest::mouseClick(groups->viewport(), Qt::RightButton, {},
                          groups->visualItemRect(groups->topLevelItem(1)).center());
        QCOMPARE(table->currentRow(), newRow);
        // A group that is selected in the list selects its row, which marks all its groups.
        groups->setCurrentItem(groups->topLevelItem(2));
        QCOMPARE(table->currentRow(), 2);
        QCOMPARE(markedRows(groups), 2);
        QVERIFY(view->grab().toImage() != unlit);
        table->setCurrentCell(0, 0);
        QCOMPARE(markedRows(groups), 0); // beams and springs are not remaining groups
        table->setCurrentCell(newRow, 1);
        const QPoint roof(view->width() / 2, view->height() * 2 / 5);
        QTest::mouseClick(view, Qt::LeftButton, {}, roof);
        QVERIFY(table->currentRow() != newRow);
        whenModal([](QWidget* box) { press(box, QMessageBox::Discard); });
        QVERIFY(window->close());
    }

    /// Picking changes the current row at once, as a step of its own.
    void pickingInTheView()
    {
        const auto window = open("pick.zob");
        QWidget* dock = openDesign(*window);
        auto table = find<QTableWidget>(*dock, "table");
        find<QPushButton>(*dock, "btnNew")->click();
        const int newRow = table->rowCount() - 1;
        table->setCurrentCell(newRow, 1);
        find<QPushButton>(*window, "PickGroups")->click();
        const auto banner = find<QWidget>(*window, "PickBanner");
        const auto pick = [&](int row) {
            pickGroup(*window, row);
            return banner->findChildren<QLabel*>().last()->text();
        };
        QCOMPARE(pick(5), QStringLiteral("Groups: 6. Without area elements: 6"));
        QCOMPARE(pick(0), QStringLiteral("Groups: 1, 6. Without area elements: 6"));
        QCOMPARE(window->statusBar()->currentMessage(),
                 QStringLiteral("Group 1 is now in row 6, no longer in row 2."));
        QCOMPARE(table->item(1, 0)->text(), QStringLiteral("None"));
        QCOMPARE(pick(5), QStringLiteral("Groups: 1"));
        QVERIFY(window->isWindowModified());
        auto edit = window->findChild<QMenu*>(QStringLiteral("EditMenu"));
        auto filter = find<QLineEdit>(*window, "GroupFilter");
        filter->setFocus();
        QTest::keyClicks(filter, QStringLiteral("x"));
        QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier); // undoes typing in the field
        QCOMPARE(table->item(1, 0)->text(), QStringLiteral("None"));
        QVERIFY(edit->isEnabled());
        for (int step = 0; step < 3; ++step) // the focus is outside the page
            QTest::keyClick(find<QWidget>(*window, "GroupList"), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(table->item(1, 0)->text(), QStringLiteral("1"));
        // The button in the group dialog starts picking with the groups that are checked there.
        find<QPushButton>(*window, "PickDone")->click();
        QVERIFY(!banner->isVisible());
        table->setCurrentCell(newRow, 0);
        whenModal([](QWidget* list) {
            find<QLineEdit>(*list, "input")->setText(QStringLiteral("4"));
            find<QPushButton>(*list, "pick")->click();
        });
        find<QPushButton>(*table, "buttonGroups")->click();
        QVERIFY(banner->isVisible());
        QCOMPARE(pick(6), QStringLiteral("Groups: 4, 7. Without area elements: 7"));
        const auto groups = find<QTreeWidget>(*window, "GroupList");
        QTest::mouseClick(groups->viewport(), Qt::LeftButton, {},
                          groups->visualItemRect(groups->topLevelItem(4)).center());
        QCOMPARE(banner->findChildren<QLabel*>().last()->text(),
                 QStringLiteral("Groups: 4, 5, 7. Without area elements: 7"));
        table->setCurrentCell(0, 0);
        QCOMPARE(pick(6), QStringLiteral("The groups of row 1 cannot be changed."));
        whenModal([](QWidget* box) { press(box, QMessageBox::Discard); });
        QVERIFY(window->close());
    }

    void rowFilter_data()
    {
        const Columns<QString, bool> row("filter", "isMatch"); // of group 12, "Roof slab 7"
        row("number", "12", true);
        row("another number", "1", false);
        row("range", "3-12", true);
        row("reverse range with a dash and spaces", "20 \u2013 12", true);
        row("one of several", "4; 10-12", true);
        row("none of several", "4, 13-20", false);
        row("word", "SLAB", true);
        row("both words", "slab roof", true);
        row("only one word", "slab floor", false);
        row("word and other number", "slab 3", false);
        row("number in the title", "7", true);
        row("empty", " ", true);
    }

    void rowFilter()
    {
        QFETCH(const QString, filter);
        const QString title = QStringLiteral("Roof slab 7");
        using workbench::RowFilter;
        QTEST(RowFilter(filter, RowFilter::Numbers::AlsoInTitles).matches(12, title), "isMatch");
        QVERIFY(!RowFilter(QStringLiteral("7")).matches(12, title));
    }

    /// The menu of groups hides and isolates them in the view, and the list follows the filter.
    void hiddenGroups()
    {
        const auto window = open("hidden.zob");
        auto groups = find<QTreeWidget>(*window, "GroupList");
        auto view = find<AnimatorView>(*window, "AnimatorView");
        const auto choose = [](int action) {
            QTimer::singleShot(0, [action] {
                auto menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                menu->actions().at(action)->trigger();
                menu->close();
            });
        };
        enum Action { Hide = 1, Isolate, ShowAll }; // after the separator
        const QImage whole = view->grab().toImage();
        groups->setCurrentItem(groups->topLevelItem(2));
        choose(Hide);
        Q_EMIT groups->customContextMenuRequested({});
        const QImage withoutRoof = view->grab().toImage();
        QVERIFY(withoutRoof != whole);
        choose(ShowAll);
        Q_EMIT view->menuRequested(AnimatorView::NoGroup, {});
        QVERIFY(view->grab().toImage() == whole);
        choose(Isolate);
        Q_EMIT view->menuRequested(8, {});
        QVERIFY(view->grab().toImage() != withoutRoof);
        groups->selectAll();
        choose(Hide);
        Q_EMIT groups->customContextMenuRequested({});
        QImage nothing = view->grab().toImage(); // not even supports are drawn
        nothing = nothing.copy(nothing.width() / 3, 9, nothing.width() / 2, nothing.height() - 18);
        QImage blank = nothing;
        blank.fill(nothing.pixel(9, 9));
        QVERIFY(nothing == blank);
        find<QLineEdit>(*window, "GroupFilter")->setText(QStringLiteral("slab"));
        QVERIFY(groups->topLevelItem(0)->isHidden() && !groups->topLevelItem(1)->isHidden());
        trigger(*window, "Reload");
        QVERIFY(view->grab().toImage() == whole);
    }

    /// The legend contains each row with groups, and a click on it selects the row.
    void colouredRows()
    {
        const auto window = open("coloured.zob");
        auto view = find<AnimatorView>(*window, "AnimatorView");
        auto table = find<QTableWidget>(*openDesign(*window), "table");
        table->setCurrentCell(0, 0);
        QApplication::processEvents(); // lays out the docks
        const QImage own = view->grab().toImage();
        auto colour = find<QPushButton>(*window, "ColourRows");
        colour->click();
        QVERIFY(view->grab().toImage() != own);
        auto legend = find<QWidget>(*window, "RowLegend");
        QCOMPARE(legend->accessibleDescription(),
                 QStringLiteral("1: Remaining\n2: 1\n3: 2, 3\n4: COLS\n5: 4, 5"));
        QTest::mouseClick(legend, Qt::LeftButton, {}, legend->rect().center());
        QCOMPARE(table->currentRow(), 2);
        table->setCurrentCell(0, 0);
        colour->click();
        QVERIFY(!legend->isVisible());
        trigger(*window, "German"); // replaces the page
        QString opened;
        whenModal([&opened](QWidget* presets) {
            opened = presets->objectName();
            presets->close();
        });
        find<QPushButton>(*window, "DesignPresets")->click();
        QCOMPARE(opened, QStringLiteral("PresetsDialog"));
    }

    /// Apply asks about a group that is in two rows, and reports that a row without groups is
    /// saved.
    void messagesOfApply()
    {
        const auto window = open("rows.zob");
        const auto records = find<QTableView>(*window, "Records")->model();
        const int before = records->columnCount();
        QStringList questions;
        QWidget* dock = openDesign(*window);
        auto table = find<QTableWidget>(*dock, "table");
        find<QPushButton>(*dock, "btnNew")->click();
        find<QPushButton>(*dock, "btnNew")->click();
        table->setCurrentCell(table->rowCount() - 1, 0);
        whenModal([](QWidget* list) {
            find<QLineEdit>(*list, "input")->setText(QStringLiteral("1"));
            qobject_cast<QDialog*>(list)->accept();
        });
        find<QPushButton>(*table, "buttonGroups")->click();
        for (int button : {1, 0}) {
            table->setCurrentCell(0, 1);
            whenModal([&questions, button](QWidget* box) {
                const auto question = qobject_cast<QMessageBox*>(box);
                questions << question->text();
                question->buttons().at(button)->click();
            });
            applyDesign(*window);
            QCOMPARE(table->currentRow(), button);
            QCOMPARE(window->isWindowModified(), button == 1);
        }
        const auto shared =
            QStringLiteral("Group 1 is in rows 2 and 7; two records would be stored.");
        QCOMPARE(questions, QStringList({shared, shared}));
        QCOMPARE(records->columnCount(), before + 1);
        QCOMPARE(window->statusBar()->currentMessage(),
                 QStringLiteral("The design parameters have been stored in the project file. "
                                "1 row without groups has been saved with the page."));
    }

    void rowSteps_data()
    {
        const Columns<QByteArray, bool, bool> row("actions", "areOffered", "isChanged");
        row("language", "German English", true, false);
        row("reloaded", "Reload", true, false);
        row("stored and reloaded", "Save Reload", true, true);
        row("saved under another name", "SaveAs", true, true);
        row("dock closed and opened", "Save close", true, true);
        row("changed by another program", "Save change Reload", false, false);
        row("other project", "Save OtherProject", false, false);
    }

    /// The undo steps of the rows are preserved when the page is replaced, unless the rows differ.
    void rowSteps()
    {
        QFETCH(const QByteArray, actions);
        QFETCH(const bool, areOffered);
        const auto window = open("a.zob");
        const auto cellsAfter = [&window](const char* step) {
            trigger(*openDesign(*window), step);
            return designCells(*window);
        };
        deleteDesignRow(*openDesign(*window));
        const QStringList changed = designCells(*window);
        const QStringList initial = cellsAfter("undo");
        cellsAfter("redo");
        for (const QByteArray& action : actions.split(' ')) {
            if (action == "close") {
                find<QDockWidget>(*window, "DesignDock")->close();
            } else if (action == "change") {
                commandLine({QStringLiteral("rows"), path("a.zob"), QStringLiteral("--set-row"),
                             QStringLiteral("1"), QStringLiteral("hio=0.077")});
            } else if (action == "OtherProject") {
                QVERIFY(window->openProject(copy("b.zob")));
            } else {
                if (action == "SaveAs")
                    answerFileDialog(path("b.zob"));
                trigger(*window, action);
            }
        }
        QCOMPARE(find<QAction>(*openDesign(*window), "undo")->isEnabled(), areOffered);
        if (!areOffered)
            return;
        QCOMPARE(cellsAfter("undo"), initial);
        QTEST(window->isWindowModified(), "isChanged");
        QCOMPARE(cellsAfter("redo"), changed);
    }

    /// Groups that are not accepted stay in their line until the user corrects them.
    void refusedGroups()
    {
        const auto window = open("a.zob");
        const auto table = find<QTableWidget>(*openDesign(*window), "table");
        table->setCurrentCell(1, 0);
        QTest::keyClick(table, Qt::Key_F2);
        find<QLineEdit>(*table, "groupsLine")->setText(QStringLiteral("99x"));
        for (const char* action : {"Reload", "German", "Save", "SaveAs", "Quit"}) {
            trigger(*window, action);
            QVERIFY(window->isVisible());
            QCOMPARE(find<QLineEdit>(*window, "groupsLine")->text(), QStringLiteral("99x"));
        }
    }

    void groupsInSeveralRows_data()
    {
        const Columns<QVector<QVector<int>>, QString> row("groups", "question");
        row("three rows, the rest and a name",
            {{7, -1}, {-1, 7}, {}, {7, 0x41414141}, {0x41414141}},
            "“Remaining Groups” is in rows 1 and 2; two records would be stored.\n"
            "Group 7 is in rows 1, 2 and 4; 3 records would be stored.\n"
            "Group AAAA is in rows 4 and 5; two records would be stored.");
        row("many rows and groups",
            QVector<QVector<int>>(2, {1, 2, 3, 4, 5, 6, 7}) + QVector<QVector<int>>(10, {1}),
            "Group 1 is in rows 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and …; 12 records would be stored.\n"
            "Group 2 is in rows 1 and 2; two records would be stored.\n"
            "Group 3 is in rows 1 and 2; two records would be stored.\n"
            "Group 4 is in rows 1 and 2; two records would be stored.\n"
            "Group 5 is in rows 1 and 2; two records would be stored.\n"
            "2 more groups are in several rows.");
    }

    void groupsInSeveralRows()
    {
        QFETCH(const QVector<QVector<int>>, groups);
        QTEST(workbench::sharedGroupsQuestion(groups), "question");
    }
};

PLIB_WIDGET_TEST_MAIN(tst_designDock)
#include "tst_designDock.moc"
