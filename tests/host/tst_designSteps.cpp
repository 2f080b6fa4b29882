#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>

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
        const auto fill = [&desk](const char* edit) {
            whenModal([edit](QWidget* dialog) {
                find<QLineEdit>(*dialog, edit)->setText(QStringLiteral("0,3"));
                qobject_cast<QDialog*>(dialog)->accept();
            });
            desk.keys({Qt::Key_F2});
        };
        const struct
        {
            const char* name;
            int row, column;
            std::function<void()> run;
        } steps[] = {
            {"New row 4", 1, 1, [&] { desk.press("btnNew"); }},
            {"Type of row 4", 3, 1,
             [&] { table->item(3, 1)->setText(QStringLiteral("Circular")); }},
            {"Direction and distance of row 1", 0, 2, [&] { fill("hio"); }},
            {"Reinforcement of row 2", 1, 3, [&] { fill("asu"); }},
            {"Crack control of row 4", 3, 4, [&] { fill("stressSIGO"); }},
            {"Groups of row 4", 3, 0,
             [&] {
                 confirmGroups(QStringLiteral("2-3"));
                 desk.press("buttonGroups");
             }},
            {"Moving up of row 4", 3, 0, [&] { desk.press("btnUp"); }},
            {"Moving down of row 2", 1, 3, [&] { desk.press("btnDown"); }},
            {"Groups of row 2", 1, 0, [&] { QTest::keyClick(desk.groupCombo(), Qt::Key_Home); }},
            {"Deletion of row 4", 3, 2, [&] { desk.press("btnDelete"); }},
            {"Deletion of 2 rows", 2, 3, [&] { desk.press("btnDelete"); }},
        };
        QStringList before, after;
        for (const auto& step : steps) {
            table->setCurrentCell(step.row, step.column);
            if (&step == std::end(steps) - 1)
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
        QCOMPARE(press(Qt::Key_D, Qt::ShiftModifier), QStringLiteral("Remaining Groups|1|2||None"));
        QCOMPARE(desk.row(4).section(QLatin1Char('|'), 1),
                 desk.row(2).section(QLatin1Char('|'), 1));
        QCOMPARE(press(Qt::Key_V, Qt::ShiftModifier),
                 QStringLiteral("Remaining Groups|1|2|None|None|"));
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
    }

    /// Clicks with Ctrl add cells to the selection, even cells in which a click opens an editor.
    void selectingSeveralRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1), record(2, 2, 2)});
        QTableWidget* table = desk.table();
        for (int row : {1, 2})
            QTest::mouseClick(desk.windowHandle(), Qt::LeftButton, Qt::ControlModifier,
                              table->viewport()->mapTo(
                                  &desk, table->visualItemRect(table->item(row, 3)).center()));
        desk.press("btnDelete");
        QCOMPARE(desk.groups(), QStringLiteral("Remaining Groups"));
    }

    /// Steps that change very many rows are dropped, oldest first. The others still work.
    void oldStepsAreDropped()
    {
        std::vector<tagZOB_QUAD_RIM> records;
        for (int group = 1; group <= 10000; ++group)
            records.push_back(record(group, group % 2, 0));
        DesignDesk desk(*m_project, records);
        desk.table()->selectAll();
        for (int type : {4, 3, 2, 4, 3, 2}) {
            QApplication::clipboard()->setText(QStringLiteral("Type\n%1").arg(type));
            QTest::keyClick(desk.table(), Qt::Key_V, Qt::ControlModifier);
        }
        const auto undo = find<QAction>(*desk.page, "undo");
        int count = 0;
        for (; undo->isEnabled(); ++count)
            undo->trigger();
        QCOMPARE(count, 5);
        QCOMPARE(desk.table()->item(9999, 1)->text(), QStringLiteral("Circular"));
        QCOMPARE(desk.table()->selectionModel()->selectedRows(1).size(), 10000);
    }

private:
    std::unique_ptr<HostProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_designSteps)
#include "tst_designSteps.moc"
