#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_P_DesignParameter_Rows.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
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
/// Presses a key and Ctrl in the table. Returns the groups of all rows.
QString pressCtrl(const DesignDesk& desk, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(desk.table(), key, Qt::ControlModifier | modifiers);
    return desk.groups();
}

/// Returns the parameters of a row.
QString parameters(const DesignDesk& desk, int row)
{
    return desk.row(row).section(QLatin1Char('|'), 1);
}

/// Pastes a text that is refused. Returns the message.
QString refusalOf(const DesignDesk& desk, const QString& text)
{
    QString message;
    QApplication::clipboard()->setText(text);
    whenModal([&message](QWidget* box) {
        message = qobject_cast<QMessageBox*>(box)->text();
        qobject_cast<QDialog*>(box)->reject();
    });
    pressCtrl(desk, Qt::Key_V);
    QApplication::setActiveWindow(desk.page->window());
    return message;
}

} // namespace

/// Tests steps that can be undone, and the clipboard.
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
        const auto state = [&desk] { return desk.state(); };
        const std::vector<Step> steps = stepsOn(desk);
        QStringList before, after;
        for (const Step& step : steps) {
            table->setCurrentCell(step.row, step.column);
            if (&step == &steps.back())
                table->setRangeSelected({1, 1, 1, 2}, true);
            before << state();
            step.run();
            QCOMPARE(desk.undoText(), QLatin1String("&Undo ") + QLatin1String(step.name));
            table->setCurrentCell(-1, -1); // closes the editor
            table->setCurrentCell(0, 0);
            after << state();
        }
        setLanguage(German);
        QCOMPARE(find<QAction>(*desk.page, "undo")->text(),
                 QStringLiteral("&Rückgängig: Löschen von 2 Zeilen"));
        setLanguage(English);
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

    /// Pasting sets parameters and preserves groups. It is a single step.
    void copyingRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 4), record(2, 4, 0)});
        QTableWidget* table = desk.table();
        table->setCurrentCell(-1, -1);
        QVERIFY(!find<QAction>(*desk.page, "copyRows")->isEnabled());
        table->setCurrentCell(1, 3);
        pressCtrl(desk, Qt::Key_C);
        const QMimeData* copied = QApplication::clipboard()->mimeData();
        QCOMPARE(copied->text().count(QLatin1Char('\n')), 2);
        QVERIFY(copied->html().contains(QLatin1String("<td>4.00")));
        table->setCurrentCell(0, 3, QItemSelectionModel::ClearAndSelect);
        table->setRangeSelected({2, 3, 2, 3}, true);
        const QString before = desk.row(0) + desk.row(2);
        QCOMPARE(pressCtrl(desk, Qt::Key_V), QStringLiteral("Remaining Groups|1|2"));
        QCOMPARE(parameters(desk, 0), parameters(desk, 1));
        QCOMPARE(parameters(desk, 2), parameters(desk, 1));
        pressCtrl(desk, Qt::Key_Z);
        QCOMPARE(desk.row(0) + desk.row(2), before);
        table->setCurrentCell(2, 3, QItemSelectionModel::ClearAndSelect);
        pressCtrl(desk, Qt::Key_V);
        QCOMPARE(parameters(desk, 2), parameters(desk, 1));
        pressCtrl(desk, Qt::Key_Z); // a step after one that was undone
        QCOMPARE(desk.row(0) + desk.row(2), before);
    }

    void addingCopies()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 4), record(2, 4, 0)});
        desk.table()->setCurrentCell(1, 3);
        pressCtrl(desk, Qt::Key_C);
        desk.table()->setCurrentCell(0, 3, QItemSelectionModel::ClearAndSelect);
        desk.table()->setRangeSelected({2, 3, 2, 3}, true);
        QCOMPARE(pressCtrl(desk, Qt::Key_D, Qt::ShiftModifier),
                 QStringLiteral("Remaining Groups|1|2|None|None"));
        QCOMPARE(desk.undoText(), QStringLiteral("&Undo Duplicates of 2 rows"));
        QCOMPARE(parameters(desk, 4), parameters(desk, 2));
        QCOMPARE(pressCtrl(desk, Qt::Key_V, Qt::ShiftModifier),
                 QStringLiteral("Remaining Groups|1|2|None|None|None"));
        QCOMPARE(desk.undoText(), QStringLiteral("&Undo New row 6"));
        desk.table()->clearSelection();
        QApplication::clipboard()->setText(
            QApplication::clipboard()->text().replace(QLatin1String("4.00"), QLatin1String("5,5")));
        pressCtrl(desk, Qt::Key_V);
        QVERIFY(desk.row(6).contains(QLatin1String("5.50 cm")));
    }

    /// A text is pasted completely or not at all. The message has room for 12 faults.
    void pastingFaultyTexts()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 4)});
        desk.table()->setCurrentCell(1, 3);
        const QString before = desk.state();
        QStringList told;
        for (const char* text : {"Type\n7", "x", "Type\n1\n2"})
            told << refusalOf(desk, QLatin1String(text));
        QCOMPARE(told.first().section(QLatin1Char('\n'), 2),
                 QStringLiteral("Row 2, Type: \"7\" is not a type."));
        QVERIFY(!told.contains(QString()));
        for (int bad : {12, 13})
            QCOMPARE(refusalOf(desk, QStringLiteral("Type") + QStringLiteral("\n7").repeated(bad))
                         .section(QLatin1Char('\n'), 14),
                     bad == 13 ? QStringLiteral("1 more") : QString());
        QCOMPARE(desk.state(), before);
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
