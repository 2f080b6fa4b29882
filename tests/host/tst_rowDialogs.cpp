#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>
#include <QToolTip>

using namespace testsupport;

namespace {
/// Three rows with different parameters and one row without a design.
std::vector<tagZOB_QUAD_RIM> differentRows()
{
    tagZOB_QUAD_RIM thin = record(1, 2, 4);
    thin.hio = 0.025F;
    thin.dio = thin.diu = 12;
    tagZOB_QUAD_RIM limited = record(2, 3, 4);
    limited.amo = 9;
    return {record(-1, 1, 4), thin, limited, record(3, 0, 0)};
}

/// Opens the dialog of a column for four rows and accepts it. Returns its title and the contents of
/// its fields.
QString editFourRows(DesignDesk& desk, int column, const std::function<void(QWidget&)>& fill)
{
    desk.table()->setCurrentCell(2, column, QItemSelectionModel::ClearAndSelect);
    desk.table()->setRangeSelected({0, column, 3, column}, true);
    QStringList shown;
    whenModal([&](QWidget* dialog) {
        shown << find<QLabel>(*dialog, "rowTitle")->accessibleName();
        for (const auto* field : dialog->findChildren<QLineEdit*>())
            shown << field->objectName() + QLatin1Char(' ') + field->text() +
                         field->placeholderText();
        fill(*dialog);
        qobject_cast<QDialog*>(dialog)->accept();
        dialog->close(); // if it was not accepted
    });
    desk.keys({Qt::Key_F2});
    return shown.join(QLatin1Char('|'));
}

/// Describes the dialog of a row: its title, the current row, the field "aso" and the message.
QString shownIn(const QWidget& dialog, const DesignDesk& desk)
{
    const auto aso = find<QLineEdit>(dialog, "aso");
    return QStringLiteral("%1 at %2 with %3 fields, aso %4%5 %6")
        .arg(dialog.accessibleDescription())
        .arg(desk.table()->currentRow())
        .arg(dialog.findChildren<QLineEdit*>().size())
        .arg(aso->text(), aso->hasFocus() ? QString() : QStringLiteral(" without focus"),
             find<QLabel>(dialog, "rowMessage")->text())
        .trimmed();
}
} // namespace

/// Tests the dialogs of the cells, which edit several rows or step through the rows.
class tst_rowDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }
    void init() { m_project = std::make_unique<HostProject>(QStringLiteral("slab")); }

    /// Fields in which the rows differ are empty. Only changed fields are written, to all selected
    /// rows with a design and in one step.
    void editingSeveralRows()
    {
        DesignDesk desk(*m_project, differentRows());
        const QString before = desk.state();
        const QString shown = editFourRows(desk, 2, [](QWidget& dialog) {
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
        QCOMPARE(desk.undoText(), QStringLiteral("&Undo Direction and distance of 3 rows"));
        find<QAction>(*desk.page, "undo")->trigger();
        desk.table()->setCurrentCell(-1, -1);
        QCOMPARE(desk.state().section(QLatin1Char('\n'), 0, 6),
                 before.section(QLatin1Char('\n'), 0, 6));
    }

    /// The limits are checked in each row.
    void barsOfSeveralRows()
    {
        DesignDesk desk(*m_project, differentRows());
        QString told;
        editFourRows(desk, 3, [&told](QWidget& dialog) {
            const auto bar = find<QComboBox>(dialog, "m_pDIO");
            QCOMPARE(bar->currentText(), QStringLiteral("several"));
            QHelpEvent help(QEvent::ToolTip, {5, 5}, bar->mapToGlobal(QPoint(5, 5)));
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
        editFourRows(desk, 3, [](QWidget& dialog) {
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
            QCOMPARE(desk.undoText(), QStringLiteral("&Undo Type of 2 rows"));
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
                shown << shownIn(*dialog, desk);
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

private:
    std::unique_ptr<HostProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_rowDialogs)
#include "tst_rowDialogs.moc"
