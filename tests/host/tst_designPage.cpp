#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_SelGRP_Dialog.h>

#include <QAbstractItemView>
#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include <cstring>

using namespace testsupport;

namespace {
/// Returns the entries, with a star before the current entry.
QString entriesOf(const QComboBox* combo)
{
    QStringList texts;
    for (int entry = 0; entry < combo->count(); ++entry)
        texts << QLatin1String(entry == combo->currentIndex() ? "*" : "") + combo->itemText(entry);
    return texts.join(QLatin1Char('|'));
}
} // namespace

class tst_designPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }
    void init() { m_project = std::make_unique<HostProject>(QStringLiteral("slab")); }

    void fromANewProjectToRecords()
    {
        {
            DesignDesk desk(*m_project);
            QSignalSpy counted(desk.page, &VKD_P_DesignParameter::signal_rowCountChanged);
            desk.page->readZob();
            desk.keys({Qt::Key_Insert, Qt::Key_Insert, Qt::Key_Down, Qt::Key_Down, Qt::Key_Delete});
            QCOMPARE(counted.size(), 4);
            QCOMPARE(counted.last().first().toInt(), 2);
            desk.table()->setCurrentCell(1, 0); // because Delete cleared the selection
            desk.keys({Qt::Key_Right, Qt::Key_F2});
            auto types = find<QComboBox>(desk, "cellCombo");
            QTRY_VERIFY(types->view()->isVisible());
            QTest::keyClick(types->view(), Qt::Key_Down);
            QTest::keyClick(types->view(), Qt::Key_Down);
            QTest::keyClick(types->view(), Qt::Key_Enter);
            desk.keys({Qt::Key_Left, Qt::Key_F2});
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            confirmGroups(QStringLiteral("2-3"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            QCOMPARE(entriesOf(desk.groupCombo()), QStringLiteral("None|*2;3"));
            QTest::keyClick(desk.groupCombo(), Qt::Key_Escape);
            QCOMPARE(desk.editors(), QString());
            QCOMPARE(desk.row(0),
                     QStringLiteral("Remaining Groups|Two Layers (orthogonal)|"
                                    "0.0° ;0.0°/35.0 mm ;35.0 mm ;10.0 mm ;10.0 mm ;|"
                                    "Ø10 ; -  ; - /Ø10 ; -  ; - | -  ; -  ; - / -  ; -  ; -  ;"));
            QCOMPARE(desk.row(1).left(15), QStringLiteral("2;3|Two Layers|"));
            QVERIFY(desk.page->checkVals());
            desk.page->writeToZob();
        }
        m_project->reopen();
        QStringList stored;
        for (const tagZOB_QUAD_RIM& found : m_project->records())
            stored << QStringLiteral("%1:%2").arg(found.group).arg(found.type);
        QCOMPARE(stored.join(QLatin1Char(' ')), QStringLiteral("-1:1 2:2 3:2"));
    }

    void aTypeChangesNothingElse()
    {
        tagZOB_QUAD_RIM before = record(1, 3, 7);
        before.dioi = 12;
        DesignDesk desk(*m_project, {record(-1, 1, 0), before});
        QVERIFY(desk.table()->item(1, 3)->text().contains(QLatin1String("7.00")));
        desk.table()->item(1, 1)->setText(QStringLiteral("Two Layers"));
        desk.page->writeToZob();
        tagZOB_QUAD_RIM after = m_project->records().at(1);
        QCOMPARE(after.type, 2);
        after.type = 3;
        QVERIFY(std::memcmp(&after, &before, sizeof before) == 0);
        for (int row : {0, 1})
            desk.table()->item(row, 1)->setText(QStringLiteral("No design"));
        QCOMPARE(desk.row(0), QStringLiteral("Remaining Groups|No design|||"));
        QCOMPARE(desk.row(1), QStringLiteral("1|No design|||"));
    }

    void recordDialogsWriteOnOkAlone_data()
    {
        const Columns<int, int, QString, QString> row("kind", "column", "edit", "hint");
        row("distances", 0, 2, "hio", "");
        row("reinforcement, after its calculator", 0, 3, "aso", "");
        row("cracks", 0, 4, "stressSIGO", "");
        row("directions of a plane system", 10, 2, "rio", "");
        row("distances of a plane system, which it will lose", 10, 2, "hiuq", "not used");
    }

    /// While the dialog is open, a row is added, which moves the rows in memory. OK must still
    /// change the correct row.
    void recordDialogsWriteOnOkAlone()
    {
        QFETCH(int, kind);
        QFETCH(int, column);
        QFETCH(QString, edit);
        vkd::dbo::Model model;
        model.system.kindOfSystem = kind;
        QVERIFY(vkd::dbo::storeModel(m_project->doc()->handle(), model).isOk());
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1)});
        desk.table()->setCurrentCell(1, column);
        const QString before = desk.row(1);
        QString shown;
        const auto editAndLeave = [&](bool accepts) {
            whenModal([=, &desk, &shown](QWidget* dialog) {
                if (auto calculator = dialog->findChild<QPushButton*>(QStringLiteral("Calc"))) {
                    whenModal([](QWidget* opened) { qobject_cast<QDialog*>(opened)->accept(); });
                    calculator->click();
                }
                auto field = dialog->findChild<QLineEdit*>(edit);
                shown = field->placeholderText();
                field->setText(QStringLiteral("33"));
                for (int added = 0; accepts && added < 100; ++added)
                    find<QPushButton>(desk, "btnNew")->click();
                qobject_cast<QDialog*>(dialog)->done(int(accepts));
            });
            desk.keys({Qt::Key_F2});
            return desk.row(1);
        };
        QCOMPARE(editAndLeave(false), before);
        QTEST(shown, "hint");
        const QString after = editAndLeave(true);
        QVERIFY(after != before && after.contains(QLatin1String("33.0")));
    }

    void deletingAndMoving()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 1, 1), record(2, 1, 2),
                                     record(3, 1, 3), record(4, 1, 4)});
        QSignalSpy counted(desk.page, &VKD_P_DesignParameter::signal_rowCountChanged);
        const auto groupsAfter = [&](const char* button, int row) {
            desk.table()->setCurrentCell(row, 2);
            desk.press(button);
            return desk.groups();
        };
        QTableWidget* table = desk.table();
        table->setRangeSelected({0, 1, 0, 1}, true);
        table->setRangeSelected({3, 1, 3, 1}, true);
        desk.press("btnDelete");
        QCOMPARE(desk.notice(), QStringLiteral("The first row can be neither moved nor deleted."));
        QCOMPARE(counted.size(), 0);
        QCOMPARE(groupsAfter("btnUp", 2), QStringLiteral("Remaining Groups|2|1|3|4"));
        QCOMPARE(table->currentIndex(), table->model()->index(1, 2));
        QCOMPARE(desk.editors(), QStringLiteral("1,2"));
        QCOMPARE(desk.notice(), QString());
        desk.press("btnUp");
        QCOMPARE(desk.notice(), QStringLiteral("The first row stays first."));
        for (int row : {1, 0, 4})
            QCOMPARE(groupsAfter("btnDown", row), QStringLiteral("Remaining Groups|1|2|3|4"));
        QCOMPARE(desk.notice(), QStringLiteral("This is the last row."));
        table->setCurrentCell(0, 1, QItemSelectionModel::ClearAndSelect);
        QCOMPARE(find<QPushButton>(desk, "btnDelete")->toolTip(),
                 QStringLiteral("The first row can be neither moved nor deleted."));
        table->setFocus();
        desk.keys({Qt::Key_Delete});
        QCOMPARE(desk.notice(), find<QPushButton>(desk, "btnDelete")->toolTip());
        QCOMPARE(groupsAfter("btnDown", 3), QStringLiteral("Remaining Groups|1|2|4|3"));
        table->setCurrentItem(nullptr);
        desk.press("btnDown");
        desk.press("btnUp");
        table->setCurrentCell(4, 0);
        table->setRangeSelected({2, 2, 2, 2}, true);
        desk.press("btnDelete");
        QCOMPARE(desk.groups(), QStringLiteral("Remaining Groups|1|4"));
        QCOMPARE(counted.size(), 1);
        QCOMPARE(desk.editors(), QString());
        desk.press("btnNew");
        QCOMPARE(desk.row(3), QStringLiteral("None|No design|||"));
        for (int row = 0; row < 4; ++row) // no text is truncated
            QVERIFY(table->rowHeight(row) >=
                    table->sizeHintForIndex(table->model()->index(row, 2)).height());
        desk.page->writeToZob();
        QCOMPARE(m_project->records().size(), std::size_t(3));
    }

    void contextMenu()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 1, 1)});
        const auto choose = [&desk](int row, const QString& entry) {
            desk.table()->setCurrentCell(row, 1);
            QStringList texts;
            QTimer::singleShot(0, &desk, [&] {
                auto menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                for (QAction* action : menu->actions()) {
                    texts << action->text();
                    if (action->text() == entry)
                        action->trigger();
                }
                menu->close();
            });
            QContextMenuEvent opening(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QApplication::sendEvent(desk.table()->viewport(), &opening);
            return texts.join(QLatin1Char('|')).remove(QLatin1String(" New row 3")) +
                   QLatin1Char(' ') + desk.groups();
        };
        const QString entries = choose(0, QStringLiteral("Delete"));
        QCOMPARE(entries,
                 QStringLiteral(
                     "Copy Cell Texts|Select All||&Undo|&Redo||&Type|Direction and Di&stance...|"
                     "Rein&forcement...|Crack C&ontrol...||&Copy Rows|&Paste|Paste as &New Rows|"
                     "&Duplicate Rows||New|Delete Remaining Groups|1"));
        QCOMPARE(desk.notice(), QStringLiteral("The first row can be neither moved nor deleted."));
        QCOMPARE(choose(0, QStringLiteral("New")), entries + QLatin1String("|None"));
        QCOMPARE(choose(2, QStringLiteral("Delete")), entries);
        QCOMPARE(desk.notice(), QString());
    }

    void choosingRemainingGroups()
    {
        DesignDesk desk(*m_project, {record(4, 1, 0), record(1, 1, 1), record(2, 1, 2)});
        const auto entriesAt = [&](int row) {
            desk.table()->setCurrentCell(row, 0);
            return entriesOf(desk.groupCombo());
        };
        QCOMPARE(entriesAt(1), QStringLiteral("None|Remaining Groups|*1"));
        QTest::keyClick(desk.groupCombo(), Qt::Key_Up);
        QCOMPARE(entriesAt(2), QStringLiteral("None|*2"));
        QCOMPARE(desk.groups(), QStringLiteral("4|Remaining Groups|"));
        QCOMPARE(entriesAt(1), QStringLiteral("None|*Remaining Groups"));
        QTest::keyClick(desk.groupCombo(), Qt::Key_Up);
        QCOMPARE(entriesAt(2), QStringLiteral("None|Remaining Groups|*2"));
        QTest::keyClick(desk.groupCombo(), Qt::Key_Home);
        // The last entry still exists, but it is empty now.
        QTest::keyClick(desk.groupCombo(), Qt::Key_End);
        QCOMPARE(entriesAt(1), QStringLiteral("*None|Remaining Groups"));
        QCOMPARE(desk.groups(), QStringLiteral("4||None"));
    }

    void typedGroups_data()
    {
        const Columns<QString, QString, QString> row("typed", "groups", "notice");
        row("range", "2-1, 3", "1;2;3", "Groups also in row 3: 2.");
        row("name", "open 3", "3;OPEN", "");
        row("no groups", "none", "None", "Removed from row 2: 1 (see Undo).");
        row("unknown groups", "3 %2 99", "1", "Unknown groups: %2, 99. Row 2 keeps its groups.");
        row("second row for the rest", "REMAINING", "1",
            "The remaining groups belong to another row. Row 2 keeps its groups.");
    }

    /// Rejected text stays in the line until the line loses the focus.
    void typedGroups()
    {
        QFETCH(const QString, typed);
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 1, 1), record(2, 1, 2)});
        QTableWidget* table = desk.table();
        table->setCurrentCell(0, 0);
        desk.keys({Qt::Key_3}); // ignored, because the groups of the first row are fixed
        table->setCurrentCell(1, 0);
        desk.keys({Qt::Key_Escape, Qt::Key_3});
        QCOMPARE(find<QLineEdit>(desk, "groupsLine")->text(), QStringLiteral("3"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        desk.keys({Qt::Key_F2});
        // The typed text replaces the groups. The second F2 must not open a second line.
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        const bool isAccepted = table->currentRow() == 2;
        QCOMPARE(find<QAction>(*desk.page, "undo")->isEnabled(), isAccepted);
        bool isFinished = false;
        QMetaObject::invokeMethod(find<QObject>(desk, "rows"), "finishEditing",
                                  Q_RETURN_ARG(bool, isFinished));
        QCOMPARE(isFinished, isAccepted);
        table->setFocus();
        QTEST(desk.notice(), "notice");
        table->setCurrentCell(0, 1);
        QTEST(table->item(1, 0)->text(), "groups");
        desk.press("btnNew");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_3);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
        QCOMPARE(desk.groupCombo()->currentText(), QStringLiteral("3"));
        QVERIFY(table->hasFocus());
    }

    void dialogsKnowTheGroupsOfOtherRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(3, 1, 1), record(1, 1, 2)});
        desk.table()->setCurrentCell(1, 0);
        whenModal([](QWidget* dialog) {
            const auto list = find<QAbstractItemView>(*dialog, "groups")->model();
            for (int row : {0, 1, 2})
                QCOMPARE(list->index(row, list->columnCount() - 1).data().toString().isEmpty(),
                         row > 0);
            dialog->close();
        });
        desk.press("buttonGroups");
        QCOMPARE(desk.groupCombo()->currentText(), QStringLiteral("3"));
        confirmGroups(QStringLiteral("OPEN"));
        desk.press("buttonSekGroups");
        QCOMPARE(desk.groupCombo()->currentText(), QStringLiteral("OPEN"));
        whenModal([](QWidget* dialog) {
            qobject_cast<QDialog*>(dialog)->done(VKD_H_SelGRP_Dialog::PickOutside);
        });
        desk.press("buttonGroups");
        Q_EMIT desk.isReOpen(VKD_H_SelGRP_Dialog::PickOutside); // nothing has been picked
        QCOMPARE(desk.groupCombo()->currentText(), QStringLiteral("OPEN"));
        desk.table()->setCurrentCell(1, 1);
        desk.page->writeToZob();
        QVERIFY(m_project->records().at(1).group > 1000000);
    }

    void projectWithoutGroups()
    {
        HostProject bare{QString()};
        DesignDesk desk(bare, {record(-1, 1, 0), record(1, 1, 1)});
        desk.table()->setCurrentCell(1, 0);
        for (const char* name : {"buttonGroups", "buttonSekGroups"})
            QVERIFY(!find<QPushButton>(desk, name)->isEnabled());
        desk.page->showHelp();
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != &desk);
        QApplication::activeWindow()->close();
    }

    /// While a dialog is open, a host may close the project and thus delete the page.
    void pageIsDestroyedDuringItsDialogs()
    {
        for (int column : {0, 1, 2}) {
            auto desk = std::make_unique<DesignDesk>(
                *m_project, std::vector{record(-1, 1, 0), record(1, 4, 1)});
            desk->press("btnNew");
            desk->table()->setCurrentCell(1, column);
            if (column == 0)
                desk->keys({Qt::Key_3}); // the line is applied when the button gets the focus
            whenModal([&desk](QWidget*) { desk.reset(); });
            if (column == 1) // no dialog for this column; checkVals() shows a question
                QVERIFY(!desk->page->checkVals());
            else
                desk->table()->viewport()->findChild<QPushButton*>()->click();
            QVERIFY(!desk);
        }
    }

    void leavingThePage()
    {
        DesignDesk desk(*m_project);
        desk.page->readZob();
        QVERIFY(desk.page->checkVals());
        desk.press("btnNew");
        for (auto answer : {QMessageBox::No, QMessageBox::Yes, QMessageBox::NoButton}) {
            whenModal([answer](QWidget* opened) {
                auto box = qobject_cast<QMessageBox*>(opened);
                QCOMPARE(box->text(), QLatin1String("No groups selected.\nPossible loss of data!"));
                QVERIFY(box->informativeText().startsWith(
                    QLatin1String("Yes continues without the rows that have no groups")));
                if (QAbstractButton* button = box->button(answer))
                    return button->click();
                QTest::keyClick(box, Qt::Key_Escape);
            });
            QCOMPARE(desk.page->checkVals(), answer == QMessageBox::Yes);
        }
        VKD_H_ProjectDialogPage entries;
        desk.page->getEntrys(entries);
        QVERIFY(desk.page->checkVals()); // rows without groups are saved in the page's entries
    }

private:
    std::unique_ptr<HostProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_designPage)
#include "tst_designPage.moc"
