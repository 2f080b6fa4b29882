#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_P_DesignParameter_Rows.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QToolButton>
#include <QToolTip>

using namespace testsupport;

namespace {
QByteArray bytesOf(const std::vector<tagZOB_QUAD_RIM>& records)
{
    return {reinterpret_cast<const char*>(records.data()),
            int(records.size() * sizeof records.front())};
}

/// Returns the rows with their tool tips, and the selected and current cells.
QString stateOf(const DesignDesk& desk)
{
    const QTableWidget* table = desk.table();
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        texts << desk.row(row) + table->item(row, 0)->toolTip();
    for (const QModelIndex& cell : table->selectionModel()->selectedIndexes())
        texts << QStringLiteral("%1,%2").arg(cell.row()).arg(cell.column());
    const QModelIndex current = table->currentIndex();
    return texts.join(QLatin1Char('\n')) +
           QStringLiteral(" at %1,%2").arg(current.row()).arg(current.column());
}

struct Step
{
    const char* name;
    int row, column;
    std::function<void()> run;
};

/// Returns steps of each kind, which must be performed in this order.
std::vector<Step> stepsOn(DesignDesk& desk)
{
    const auto fill = [&desk](const char* edit) {
        whenModal([edit](QWidget* dialog) {
            find<QLineEdit>(*dialog, edit)->setText(QStringLiteral("0,3"));
            qobject_cast<QDialog*>(dialog)->accept();
        });
        desk.keys({Qt::Key_F2});
    };
    return {
        {"New row 4", 1, 1, [&desk] { desk.press("btnNew"); }},
        {"Type of row 4", 3, 1,
         [&desk] { desk.table()->item(3, 1)->setText(QStringLiteral("Circular")); }},
        {"Direction and distance of row 1", 0, 2, [=] { fill("hio"); }},
        {"Reinforcement of row 2", 1, 3, [=] { fill("asu"); }},
        {"Crack control of row 4", 3, 4, [=] { fill("stressSIGO"); }},
        {"Groups of row 4", 3, 0,
         [&desk] {
             confirmGroups(QStringLiteral("2-3"));
             desk.press("buttonGroups");
         }},
        {"Moving up of row 4", 3, 0, [&desk] { desk.press("btnUp"); }},
        {"Moving down of row 2", 1, 3, [&desk] { desk.press("btnDown"); }},
        {"Groups of row 2", 1, 0, [&desk] { QTest::keyClick(desk.groupCombo(), Qt::Key_Home); }},
        {"Deletion of row 4", 3, 2, [&desk] { desk.press("btnDelete"); }},
        {"Deletion of 2 rows", 2, 3, [&desk] { desk.press("btnDelete"); }},
    };
}
} // namespace

/// Tests steps that can be undone, the clipboard, and selections of several rows.
class tst_designSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }
    void init() { m_project = std::make_unique<HostProject>(QStringLiteral("slab")); }

    /// Undo and redo exactly restore the rows and the selection of each step. The test compares
    /// records, to check that no bit is lost.
    void undoingEachStep()
    {
        const std::vector records{record(-1, 1, 0), record(1, 1, 1), record(2, 2, 2)};
        DesignDesk(*m_project, records).page->writeToZob();
        const QByteArray stored = bytesOf(m_project->records());
        DesignDesk desk(*m_project, records);
        QTableWidget* table = desk.table();
        const auto state = [&desk] { return stateOf(desk); };
        const std::vector<Step> steps = stepsOn(desk);
        QStringList before, after;
        for (const Step& step : steps) {
            table->setCurrentCell(step.row, step.column);
            if (&step == &steps.back())
                table->setRangeSelected({1, 1, 1, 2}, true);
            before << state();
            step.run();
            QCOMPARE(find<QAction>(*desk.page, "undo")->text(),
                     QLatin1String("&Undo ") + QLatin1String(step.name));
            table->setCurrentCell(-1, -1); // closes the editor
            table->setCurrentCell(0, 0);
            after << state();
        }
        QApplication::setActiveWindow(&desk); // because the dialogs have deactivated it
        table->setFocus();
        for (int round : {0, 1}) {
            for (int i = before.size() - 1; i >= 0; --i) {
                QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
                QCOMPARE(state(), before[i]);
            }
            QVERIFY(!find<QAction>(*desk.page, "undo")->isEnabled());
            for (int i = 0; round == 0 && i < after.size(); ++i) {
                QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
                table->setCurrentCell(-1, -1);
                table->setCurrentCell(0, 0);
                QCOMPARE(state(), after[i]);
            }
        }
        desk.page->writeToZob();
        QVERIFY(
            !find<QAction>(*desk.page, "redo")->isEnabled()); // the rows are in the stored form now
        QVERIFY(bytesOf(m_project->records()) == stored);
    }

    /// Pasting sets parameters and preserves groups. It is a single step, which is performed
    /// completely or not at all.
    void copyingRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 4), record(2, 4, 0)});
        QTableWidget* table = desk.table();
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(table, Qt::Key(key), Qt::ControlModifier | modifiers);
            return desk.groups();
        };
        table->setCurrentCell(-1, -1);
        QVERIFY(!find<QAction>(*desk.page, "copyRows")->isEnabled());
        table->setCurrentCell(1, 3);
        press(Qt::Key_C);
        const QString copied = QApplication::clipboard()->text();
        QCOMPARE(copied.count(QLatin1Char('\n')), 2);
        QVERIFY(QApplication::clipboard()->mimeData()->html().contains(QLatin1String("<td>4.00")));
        table->setCurrentCell(0, 3, QItemSelectionModel::ClearAndSelect);
        table->setRangeSelected({2, 3, 2, 3}, true);
        const QString before = desk.row(0) + desk.row(2);
        QCOMPARE(press(Qt::Key_V), QStringLiteral("Remaining Groups|1|2"));
        QCOMPARE(desk.row(0).section(QLatin1Char('|'), 1),
                 desk.row(1).section(QLatin1Char('|'), 1));
        QCOMPARE(desk.row(2).section(QLatin1Char('|'), 1),
                 desk.row(1).section(QLatin1Char('|'), 1));
        press(Qt::Key_Z);
        QCOMPARE(desk.row(0) + desk.row(2), before);
        table->setCurrentCell(2, 3, QItemSelectionModel::ClearAndSelect);
        press(Qt::Key_V);
        QCOMPARE(desk.row(2).section(QLatin1Char('|'), 1),
                 desk.row(1).section(QLatin1Char('|'), 1));
        press(Qt::Key_Z); // a step after one that was undone
        QCOMPARE(desk.row(0) + desk.row(2), before);
        table->setRangeSelected({0, 3, 0, 3}, true);
        const auto undo = [&desk] { return find<QAction>(*desk.page, "undo")->text(); };
        QCOMPARE(press(Qt::Key_D, Qt::ShiftModifier),
                 QStringLiteral("Remaining Groups|1|2|None|None"));
        QCOMPARE(undo(), QStringLiteral("&Undo Duplicates of 2 rows"));
        QCOMPARE(desk.row(4).section(QLatin1Char('|'), 1),
                 desk.row(2).section(QLatin1Char('|'), 1));
        QCOMPARE(press(Qt::Key_V, Qt::ShiftModifier),
                 QStringLiteral("Remaining Groups|1|2|None|None|None"));
        QCOMPARE(undo(), QStringLiteral("&Undo New row 6"));
        table->clearSelection();
        QApplication::clipboard()->setText(
            QString(copied).replace(QLatin1String("4.00"), QLatin1String("5,5")));
        press(Qt::Key_V);
        QVERIFY(desk.row(6).contains(QLatin1String("5.50 cm")));
        const QString same = desk.row(6);
        QStringList told;
        for (const char* text : {"Type\n7", "x", "Type\n1\n2"}) {
            QApplication::clipboard()->setText(QLatin1String(text));
            whenModal([&told](QWidget* box) {
                told << qobject_cast<QMessageBox*>(box)->text().section(QLatin1Char('\n'), 2);
                qobject_cast<QDialog*>(box)->reject();
            });
            press(Qt::Key_V);
            QApplication::setActiveWindow(&desk);
            QCOMPARE(desk.row(6), same);
            QCOMPARE(table->rowCount(), 7);
        }
        QCOMPARE(told.size(), 3);
        QCOMPARE(told.first(), QStringLiteral("Row 2, Type: \"7\" is not a type."));
        for (int bad : {12, 13}) { // the message has room for 12 faults
            QApplication::clipboard()->setText(QStringLiteral("Type") +
                                               QStringLiteral("\n7").repeated(bad));
            whenModal([&](QWidget* box) {
                told << qobject_cast<QMessageBox*>(box)->text().section(QLatin1Char('\n'), 14);
                qobject_cast<QDialog*>(box)->reject();
            });
            press(Qt::Key_V);
            QApplication::setActiveWindow(&desk);
        }
        QCOMPARE(told.mid(3).join(QLatin1Char('|')), QStringLiteral("|1 more"));
    }

    /// Fields in which the rows differ are empty. Only changed fields are written, to all selected
    /// rows with a design and in one step. The limits are checked in each row.
    void editingSeveralRows()
    {
        tagZOB_QUAD_RIM thin = record(1, 2, 4);
        thin.hio = 0.025F;
        thin.dio = thin.diu = 12;
        tagZOB_QUAD_RIM limited = record(2, 3, 4);
        limited.amo = 9;
        DesignDesk desk(*m_project, {record(-1, 1, 4), thin, limited, record(3, 0, 0)});
        const QString before = stateOf(desk);
        const auto edit = [&desk](int column, const std::function<void(QWidget&)>& fill) {
            desk.table()->setCurrentCell(2, column, QItemSelectionModel::ClearAndSelect);
            desk.table()->setRangeSelected({0, column, 3, column}, true);
            QString shown;
            whenModal([&](QWidget* dialog) {
                QStringList texts{find<QLabel>(*dialog, "rowTitle")->accessibleName()};
                for (const auto* field : dialog->findChildren<QLineEdit*>())
                    texts << field->objectName() + QLatin1Char(' ') + field->text() +
                                 field->placeholderText();
                shown = texts.join(QLatin1Char('|'));
                fill(*dialog);
                qobject_cast<QDialog*>(dialog)->accept();
                dialog->close(); // if it was not accepted
            });
            desk.keys({Qt::Key_F2});
            return shown;
        };
        const QString shown = edit(2, [](QWidget& dialog) {
            find<QLineEdit>(dialog, "hiuq")->setText(QStringLiteral("12"));
            const auto hio = find<QLineEdit>(dialog, "hio");
            QTest::keyClicks(hio, QStringLiteral("7"));
            QCOMPARE(hio->text(), QStringLiteral("7"));
            QTest::keyClick(hio, Qt::Key_Backspace);
            QTest::keyClick(hio, Qt::Key_Delete); // sets the value to "not set" in all rows
        });
        QCOMPARE(shown, QStringLiteral("Rows 1-3: groups 1, 2 and remaining groups|rio 0.0|riu 0.0|"
                                       "hio several|hiu 35.0|hioq several|hiuq 10.0"));
        for (int row : {0, 1, 2})
            QVERIFY(desk.row(row).contains(QLatin1String("/ -  ;35.0 mm ;")) &&
                    desk.row(row).contains(QLatin1String(" ;12.0 mm")));
        QVERIFY(desk.row(1).contains(QLatin1String("20.0 mm"))); // the spacing of the thin row
        QCOMPARE(find<QAction>(*desk.page, "undo")->text(),
                 QStringLiteral("&Undo Direction and distance of 3 rows"));
        find<QAction>(*desk.page, "undo")->trigger();
        desk.table()->setCurrentCell(-1, -1);
        QCOMPARE(stateOf(desk).section(QLatin1Char('\n'), 0, 6),
                 before.section(QLatin1Char('\n'), 0, 6));
        QString told;
        edit(3, [&told](QWidget& dialog) {
            const auto bar = find<QComboBox>(dialog, "m_pDIO");
            QCOMPARE(bar->currentText(), QStringLiteral("several"));
            QHelpEvent help(QEvent::ToolTip, {5, 5}, bar->mapToGlobal({5, 5}));
            QApplication::sendEvent(bar, &help);
            QVERIFY(QToolTip::text().contains(QLatin1String("Different values: ")));
            bar->setCurrentIndex(bar->findText(QStringLiteral("Ø20")));
            find<QLineEdit>(dialog, "aso")->setText(QStringLiteral("9,5"));
            whenModal([&told](QWidget* box) {
                told = qobject_cast<QMessageBox*>(box)->informativeText();
                box->close();
            });
        });
        QCOMPARE(told, QStringLiteral("Row 3: the minimum would be 9.50 cm²/m and the maximum 9.00 "
                                      "cm²/m."));
        edit(3, [](QWidget& dialog) {
            find<QLineEdit>(dialog, "aso")->setText(QStringLiteral("9"));
            const auto bar = find<QComboBox>(dialog, "m_pDIU");
            const int notSet = bar->findText(QStringLiteral("not set"));
            QVERIFY(notSet >= 0);
            bar->setCurrentIndex(notSet);
        });
        QVERIFY(desk.row(1).contains(QStringLiteral("Ø12 ;9.00 cm²/m ; - / -  ;")));
        QVERIFY(desk.row(2).contains(QStringLiteral("Ø10 ;9.00 cm²/m ;9.00")));
    }

    /// The list of types is empty if the types differ. It may then also choose the type of its own
    /// row for the others.
    void typeOfSeveralRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 3, 1), record(2, 2, 2)});
        const auto types = [&desk] {
            QStringList texts;
            for (int row : {0, 1, 2})
                texts << desk.table()->item(row, 1)->text();
            return texts.join(QLatin1Char('|'));
        };
        const QString before = types();
        desk.table()->setCurrentCell(1, 1);
        desk.table()->setRangeSelected({1, 1, 2, 1}, true);
        desk.keys({Qt::Key_F2});
        const auto list = find<QComboBox>(desk, "cellCombo");
        QTRY_VERIFY(list->view()->isVisible());
        QCOMPARE(list->currentIndex(), -1);
        list->view()->setCurrentIndex(list->model()->index(3, 0));
        QTest::keyClick(list->view(), Qt::Key_Enter);
        QTRY_COMPARE(types(), QStringLiteral("Two Layers (orthogonal)|Three Layers|Three Layers"));
        QMenu* menu = find<QAction>(*desk.page, "rowType")->menu();
        const auto checked = [menu] {
            QStringList texts;
            Q_EMIT menu->aboutToShow();
            for (const QAction* entry : menu->actions())
                texts << (entry->isChecked() ? entry->text() : QString());
            return texts.join(QString());
        };
        QCOMPARE(checked(), QStringLiteral("Three Layers"));
        for (QAction* entry : menu->actions())
            if (entry->text() == QLatin1String("Circular"))
                entry->trigger();
        QCOMPARE(types(), QStringLiteral("Two Layers (orthogonal)|Circular|Circular"));
        desk.table()->setRangeSelected({0, 1, 2, 1}, true);
        QCOMPARE(checked(), QString());
        for (int step = 0; step < 2; ++step) {
            QCOMPARE(find<QAction>(*desk.page, "undo")->text(),
                     QStringLiteral("&Undo Type of 2 rows"));
            find<QAction>(*desk.page, "undo")->trigger();
        }
        QCOMPARE(types(), before);
    }

    /// The dialog stays open from row to row. A row that is only shown keeps its record, even if OK
    /// would clear some of its fields.
    void steppingThroughRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 1), record(1, 0, 0), record(2, 3, 2),
                                     record(3, 2, 3), record(4, 2, 4)});
        desk.table()->setCurrentCell(0, 3);
        QStringList shown;
        whenModal([&](QWidget* dialog) {
            QApplication::setActiveWindow(dialog); // shortcuts require an active window
            const auto step = [&](Qt::Key key) {
                QTest::keyClick(dialog, key, Qt::AltModifier);
                shown << QStringLiteral("%1 at %2 with %3 fields, aso %4%5 %6")
                             .arg(dialog->accessibleDescription())
                             .arg(desk.table()->currentRow())
                             .arg(dialog->findChildren<QLineEdit*>().size())
                             .arg(find<QLineEdit>(*dialog, "aso")->text(),
                                  find<QLineEdit>(*dialog, "aso")->hasFocus()
                                      ? QString()
                                      : QStringLiteral(" without focus"),
                                  find<QLabel>(*dialog, "rowMessage")->text())
                             .trimmed();
            };
            find<QLineEdit>(*dialog, "aso")->setFocus();
            find<QLineEdit>(*dialog, "asu")->setText(QStringLiteral("7"));
            step(Qt::Key_Down);
            step(Qt::Key_Down);
            find<QLineEdit>(*dialog, "aso")->setText(QStringLiteral("8,5"));
            find<QLineEdit>(*dialog, "amo")->setText(QStringLiteral("x"));
            step(Qt::Key_Down); // refused
            find<QLineEdit>(*dialog, "amo")->clear();
            find<QLineEdit>(*dialog, "aso")->setFocus();
            step(Qt::Key_Down);
            step(Qt::Key_Down); // the last row
            for (int row : {3, 2, 0, 0}) {
                Q_UNUSED(row)
                step(Qt::Key_Up);
            }
            qobject_cast<QDialog*>(dialog)->reject();
        });
        desk.keys({Qt::Key_F2});
        QCOMPARE(
            shown.join(QLatin1Char('\n')),
            QStringLiteral(
                "Row 3: group 2 at 2 with 12 fields, aso 2.00\n"
                "Row 4: group 3 at 3 with 8 fields, aso 3.00\n"
                "Row 4: group 3 at 3 with 8 fields, aso 8.50 without focus\n"
                "Row 5: group 4 at 4 with 8 fields, aso 4.00\n"
                "Row 5: group 4 at 4 with 8 fields, aso 4.00 This is the last row.\n"
                "Row 4: group 3 at 3 with 8 fields, aso 8.50\n"
                "Row 3: group 2 at 2 with 12 fields, aso 2.00\n"
                "Row 1: remaining groups at 0 with 8 fields, aso 1.00\n"
                "Row 1: remaining groups at 0 with 8 fields, aso 1.00 This is the first row."));
        QAction* undo = find<QAction>(*desk.page, "undo");
        QCOMPARE(undo->text(), QStringLiteral("&Undo Reinforcement of row 4"));
        undo->trigger();
        QCOMPARE(undo->text(), QStringLiteral("&Undo Reinforcement of row 1"));
        undo->trigger();
        QVERIFY(!undo->isEnabled());
        QCOMPARE(desk.focusWidget(), desk.table());
    }

    /// Ctrl+Enter copies the value of a field to the fields of the same kind.
    void sameValueEverywhere()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1)});
        QStringList messages;
        const auto enter = [&](int column, const char* field, const QString& text) {
            desk.table()->setCurrentCell(1, column);
            whenModal([&](QWidget* dialog) {
                QApplication::setActiveWindow(dialog); // shortcuts require an active window
                auto edit = dialog->findChild<QLineEdit*>(QLatin1String(field));
                QWidget* focused = edit ? edit : find<QWidget>(*dialog, field);
                focused->setFocus();
                QTest::keyClicks(QApplication::focusWidget(), text);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ControlModifier);
                messages << find<QLabel>(*dialog, "rowMessage")->text();
                qobject_cast<QDialog*>(dialog)->accept();
            });
            desk.keys({Qt::Key_F2});
        };
        enter(2, "hiu", QStringLiteral("40"));
        enter(3, "m_pDIUQ", QStringLiteral("14"));
        enter(3, "amoq", QStringLiteral("70"));
        enter(4, "crackWKOQ", QStringLiteral("0,2"));
        QCOMPARE(messages.first(), QStringLiteral("Set in the other field."));
        QCOMPARE(messages.last(), QStringLiteral("Set in 3 other fields."));
        desk.page->writeToZob();
        const tagZOB_QUAD_RIM r = m_project->records().at(1);
        QStringList values;
        for (float value : {r.hio, r.hioq, r.hiu, r.dio, r.dioq, r.diu, r.diuq, r.aso, r.asu, r.amo,
                            r.amoq, r.amu, r.amuq, r.wko, r.wkoq, r.wku, r.wkuq, r.sigo})
            values << QString::number(double(value), 'g', 3);
        QCOMPARE(values.join(QLatin1Char(' ')),
                 QStringLiteral("0.04 0.05 0.04 14 14 14 14 1 -1e+05 70 70 70 70 0.2 0.2 0.2 0.2 "
                                "-1e+05"));
    }

    /// The dialog says which of its values the table shows. It continues to edit its row if the
    /// host has removed the other rows.
    void crackControlOfARow()
    {
        QStringList notes;
        for (int row : {0, 1}) {
            DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 0)});
            desk.table()->setCurrentCell(row, 4);
            whenModal([&](QWidget* dialog) {
                const auto note = find<QLabel>(*dialog, "rowNote");
                notes << (note->isVisible() ? note->text().section(QLatin1Char(' '), 3, 4)
                                            : QString());
                m_project->setRecords({record(-1, 1, 0)});
                desk.page->readZob();
                find<QToolButton>(*dialog, row == 0 ? "nextRow" : "previousRow")->click();
                QVERIFY(dialog->isVisible());
                qobject_cast<QDialog*>(dialog)->reject();
            });
            desk.keys({Qt::Key_F2});
        }
        QCOMPARE(notes.join(QLatin1Char('|')), QStringLiteral("the crack|the steel"));
    }

    /// Steps that change very many rows are dropped, oldest first. The others still work, and the
    /// page stays unmodified at the step where it was saved.
    void oldStepsAreDropped()
    {
        std::vector<tagZOB_QUAD_RIM> records;
        for (int group = 1; group <= 10000; ++group)
            records.push_back(record(group, group % 2, 0));
        DesignDesk desk(*m_project, records);
        auto rows = find<QObject>(*desk.page, vkd::plib::designparameter::RowsObject);
        desk.table()->selectAll();
        int steps = 0;
        for (int type : {4, 3, 2, 4, 3, 2}) {
            QApplication::clipboard()->setText(QStringLiteral("Type\n%1").arg(type));
            QTest::keyClick(desk.table(), Qt::Key_V, Qt::ControlModifier);
            if (steps++ == 0)
                rows->setProperty("modified", false); // as after saving
        }
        const auto undo = find<QAction>(*desk.page, "undo");
        int count = 0;
        for (; undo->isEnabled(); ++count)
            undo->trigger();
        QCOMPARE(count, 5);
        QVERIFY(!rows->property("modified").toBool());
        QCOMPARE(desk.table()->item(9999, 1)->text(), QStringLiteral("Circular"));
        QCOMPARE(desk.table()->selectionModel()->selectedRows(1).size(), 10000);
    }

private:
    std::unique_ptr<HostProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_designSteps)
#include "tst_designSteps.moc"
