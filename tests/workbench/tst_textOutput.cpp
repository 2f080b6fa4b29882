#include "ProjectTest.h"
#include "window/choice/loadCaseKinds.h"
#include "window/textoutput/CombinationTable.h"
#include "window/textoutput/ExtentFields.h"
#include "window/textoutput/TextOutputDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>

using namespace windowtest;
using namespace workbench;

namespace {
/// The text output dialog for a project.
struct Desk
{
    explicit Desk(std::unique_ptr<VKD_H_ZOBDoc> opened)
        : document(std::move(opened))
        , dialog(document->handle(), nullptr)
    {
        dialog.show();
    }

    std::unique_ptr<VKD_H_ZOBDoc> document;
    TextOutputDialog dialog;
};

/// Clicks the button with this label in the box with this title.
void choose(const QWidget& dialog, const QString& box, const QString& label)
{
    const auto buttons = dialog.findChildren<QRadioButton*>();
    for (QRadioButton* button : buttons) {
        const QWidget* place = button;
        while (place && !qobject_cast<const QGroupBox*>(place))
            place = place->parentWidget();
        if (button->text() == label && qobject_cast<const QGroupBox*>(place)->title() == box)
            return button->click();
    }
    qFatal("no %s", qPrintable(label));
}

QString results(const QWidget& dialog)
{
    QStringList lines;
    for (const char* name : {"ExtentResult", "LoadCaseResult", "CombinationResult"})
        lines << find<QLabel>(dialog, name)->text();
    return lines.join(QLatin1Char('\n'));
}

/// Returns the names of the coupled widgets that are enabled.
QString live(const QWidget& dialog)
{
    QStringList names;
    if (dialog.findChild<ExtentFields*>()->isEnabled())
        names << QStringLiteral("extent");
    if (!find<PickTable>(dialog, "TextLoadCases")->is_read_only())
        names << QStringLiteral("load cases");
    if (!find<PickTable>(dialog, "TextCombinations")->is_read_only())
        names << QStringLiteral("combinations");
    return names.join(QLatin1Char('+'));
}

int checkedRows(const PickTable& table)
{
    const QAbstractItemModel& rows = *table.model();
    return rows.match(rows.index(0, 0), Qt::CheckStateRole, Qt::Checked, -1, Qt::MatchExactly)
        .size();
}

QString labels(const QWidget& box)
{
    QStringList texts;
    for (const QRadioButton* button : box.findChildren<QRadioButton*>())
        texts << button->text();
    return texts.join(QLatin1Char('|'));
}

const QString ExtentBox = QStringLiteral("Extent of the text output");
const QString LoadCaseBox = QStringLiteral("Load cases in the text output");
const QString CombinationBox = QStringLiteral("Combinations in the text output");
const QString Proposed = QStringLiteral("Printed lists: System, Loads, Support reactions. "
                                        "Result values: Extreme values\n"
                                        "Printed load cases (7 of 7): 1–7\n"
                                        "Printed combinations (3 of 3): 101–103");
} // namespace

class tst_textOutput : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void choices_data()
    {
        // These lines replace the lines of the default choice.
        const Columns<QString, QString, QString, QString> row("box", "label", "live", "lines");
        row("extent by hand", ExtentBox, "Manually controlled", "extent+combinations", "");
        row("no text", ExtentBox, "No text output", "combinations",
            "Printed lists: none\n"
            "Printed load cases: none, as neither loads nor results are printed\n"
            "Printed combinations: none, as no results are printed");
        row("full text", ExtentBox, "Full text output", "combinations",
            "Printed lists: System, Loads, Displacements, Internal forces, Support reactions. "
            "Result values: All nodes and elements");
        row("load cases by hand", LoadCaseBox, "Manually", "extent+load cases+combinations", "");
        row("combinations of a kind", CombinationBox, "All Quasi-Permanent", "extent",
            "\n\nPrinted combinations (1 of 3): 103");
    }

    void choices()
    {
        QFETCH(const QString, box);
        QFETCH(const QString, label);
        QFETCH(const QString, lines);
        const Desk desk(building());
        QCOMPARE(results(desk.dialog), Proposed);
        QCOMPARE(live(desk.dialog), QStringLiteral("extent+combinations"));
        choose(desk.dialog, box, label);
        QTEST(live(desk.dialog), "live");
        QStringList expected = Proposed.split(QLatin1Char('\n'));
        const QStringList others = lines.split(QLatin1Char('\n'));
        for (int i = 0; i < others.size(); ++i)
            if (!others[i].isEmpty())
                expected[i] = others[i];
        QCOMPARE(results(desk.dialog), expected.join(QLatin1Char('\n')));
    }

    void picksByHand()
    {
        const Desk desk(building());
        auto table = find<PickTable>(desk.dialog, "TextLoadCases");
        auto result = find<QLabel>(desk.dialog, "LoadCaseResult");
        const QString all = result->text();
        QTest::keyClick(table, Qt::Key_Space);
        QCOMPARE(result->text(), all);
        choose(desk.dialog, LoadCaseBox, QStringLiteral("Manually"));
        for (int row = 0; row < 7; ++row) {
            QTest::keyClick(table, Qt::Key_Space);
            if (row == 3)
                QCOMPARE(result->text(), QStringLiteral("Printed load cases (3 of 7): 5–7"));
            QTest::keyClick(table, Qt::Key_Down);
        }
        QCOMPARE(result->text(), QStringLiteral("Printed load cases: none"));
        QCOMPARE(checkedRows(*table), 0);
        choose(desk.dialog, LoadCaseBox, QStringLiteral("All"));
        QCOMPARE(result->text(), all);
        QCOMPARE(checkedRows(*table), 7); // selected by the rule
        choose(desk.dialog, LoadCaseBox, QStringLiteral("Manually"));
        QCOMPARE(checkedRows(*table), 0); // the manual selection is restored
        choose(desk.dialog, LoadCaseBox, QStringLiteral("All"));
        find<QCheckBox>(desk.dialog, "ReactionList")->click();
        QVERIFY(
            results(desk.dialog).startsWith(QLatin1String("Printed lists: System, Loads\n") + all));
        find<QCheckBox>(desk.dialog, "LoadList")->click();
        QVERIFY(result->text().contains(QLatin1String("none, as neither loads")));
    }

    void kinds_data()
    {
        const Columns<int, QString> row("kind", "loads");
        row("", 0, "Other loads");
        row("Tragfähigkeit, ständig und vorübergehend", 0, "Permanent loads");
        row("Außergewöhnlich, Anprall", 3, "Other loads");
        row("Accidental: impact", 3, "Other loads");
        row("Brandfall", 4, "Other loads");
        row("ULS fire", 4, "Other loads");
        row("Erdbeben X+0.3Y", 5, "Other loads");
        row("SEISMIC", 5, "Other loads");
        row("GZG, charakteristisch", 6, "Other loads");
        row("SLS, rare", 6, "Other loads");
        row("häufig", 7, "Other loads");
        row("SLS frequent", 7, "Other loads");
        row("Gebrauchstauglichkeit, quasi-ständig", 8, "Other loads");
        row("quasi permanent", 8, "Other loads");
        row("nicht-häufig", 9, "Other loads");
        row("Non-frequent", 9, "Other loads");
        row("Brandenburg", 0, "Other loads");
        row("nicht ständige Lasten", 0, "Other loads");
        row("Self weight", 0, "Permanent loads");
        row("Dachnutzlast Krankenhaus", 0, "Live loads");
        row("Dachkranz", 0, "Other loads");
        row("Brückenkran", 0, "Cranes");
        row("Kranbahn", 0, "Cranes");
        row("Vorspannung Kranbahn", 0, "Prestress");
        row("Windlast", 0, "Wind");
        row("Traffic, window side", 0, "Live loads");
    }

    /// The name of the data row is the title of the combination or of the load case.
    void kinds()
    {
        const QString title = QString::fromUtf8(QTest::currentDataTag());
        CombinationTable table({{101, title, 2}}, nullptr, "Combinations");
        const int kind = table.kinds().value(101);
        QTEST(kind, "kind");
        QTEST(loadCaseKind(title), "loads");
        for (const QMap<int, int>& strange :
             {QMap<int, int>(), {{7, 3}}, {{101, 2}}, {{101, -1}}}) {
            table.setKinds({{101, 4}});
            QCOMPARE(table.numbersOf(4), QVector<int>{101});
            table.setKinds(strange);
            QCOMPARE(table.kinds().value(101), kind);
        }
    }

    /// A kind is offered if any combination has this kind. A saved choice of a kind without
    /// combinations is ignored.
    void rowFollowsKinds()
    {
        Desk desk(building());
        auto table = desk.dialog.findChild<CombinationTable*>();
        const auto row = [&] { return labels(*table->parentWidget()); };
        QCOMPARE(row(), QStringLiteral("Manually|All Quasi-Permanent"));
        auto box = table->findChild<VKD_QT4_ComboBox*>();
        box->setCurrentId(5);
        QCOMPARE(row(), QStringLiteral("Manually|All Earthquake|All Quasi-Permanent"));
        QVERIFY(!table->is_read_only() && box->isEnabled());
        choose(desk.dialog, CombinationBox, QStringLiteral("All Earthquake"));
        QVERIFY(table->is_read_only() && !box->isEnabled());
        QCOMPARE(find<QLabel>(desk.dialog, "CombinationResult")->text(),
                 QStringLiteral("Printed combinations (1 of 3): 101"));
        TextOutputState state = desk.dialog.state();
        QCOMPARE(state.combinations, QStringLiteral("checked:m_All_E"));
        state.kinds[101] = 0;
        desk.dialog.setState(state);
        QCOMPARE(row(), QStringLiteral("Manually|All Quasi-Permanent"));
        QCOMPARE(desk.dialog.state().combinations, QStringLiteral("checked:m_Manually"));
    }

    void nothingToPick()
    {
        const Desk desk(VKD_H_ZOBDoc::create(path("empty.zob")));
        choose(desk.dialog, LoadCaseBox, QStringLiteral("Manually"));
        QTest::keyClick(find<PickTable>(desk.dialog, "TextLoadCases"), Qt::Key_Space);
        QVERIFY(
            results(desk.dialog)
                .endsWith(QLatin1String("\nPrinted load cases: none\nPrinted combinations: none")));
        QCOMPARE(labels(*find<PickTable>(desk.dialog, "TextCombinations")->parentWidget()),
                 QStringLiteral("Manually"));
    }

    void saved_data()
    {
        const Columns<int, bool> row("button", "isStored");
        row("OK", 0, true);
        row("Cancel", 1, false);
    }

    void saved()
    {
        QFETCH(const int, button);
        QFETCH(const bool, isStored);
        const auto window = open("saved.zob");
        trigger(*window, "TextOutput");
        auto dialog = window->findChild<TextOutputDialog*>();
        QVERIFY(!dialog->isChanged());
        find<QCheckBox>(*dialog, "ForceList")->click();
        choose(*dialog, ExtentBox, QStringLiteral("Full text output"));
        QVERIFY(find<QCheckBox>(*dialog, "DisplacementList")->isChecked());
        choose(*dialog, LoadCaseBox, QStringLiteral("Manually"));
        find<PickTable>(*dialog, "TextLoadCases")->setLeftOut({1, 6});
        find<PickTable>(*dialog, "TextCombinations")->setLeftOut({102});
        dialog->findChild<CombinationTable*>()->setKinds({{102, 3}});
        choose(*dialog, CombinationBox, QStringLiteral("All Accidential"));
        const QString chosen = results(*dialog);
        QVERIFY(dialog->isChanged());
        QTRY_VERIFY(window->isWindowModified());
        find<QWidget>(*dialog, "okayandcancelbutton")
            ->findChildren<QPushButton*>()[button]
            ->click();
        QVERIFY(!window->isWindowModified() && window->close());

        const Desk again(VKD_H_ZOBDoc::open(path("saved.zob")));
        QCOMPARE(results(again.dialog), isStored ? chosen : Proposed);
        QVERIFY(!again.dialog.isChanged());
        choose(again.dialog, ExtentBox, QStringLiteral("Manually controlled"));
        choose(again.dialog, CombinationBox, QStringLiteral("Manually"));
        QCOMPARE(results(again.dialog).contains(QLatin1String("Internal forces")), isStored);
        QVERIFY(!results(again.dialog).contains(QLatin1String("Displacements")));
        QCOMPARE(results(again.dialog).endsWith(QLatin1String("101, 103")), isStored);
    }

    void choosingLoadCases_data()
    {
        // load cases 1 to 7, of which 3 and 5 are checked
        const Columns<QString, QString, QString> row("filter", "button", "checked");
        row("all", "", "ChooseAll", "1 2 3 4 5 6 7");
        row("none", "", "ChooseNone", "");
        row("invert", "", "ChooseOthers", "1 2 4 6 7");
        row("exactly a range", "1-2, 7", "ChooseOnly", "1 2 7");
        row("all in the filter", "6-20", "ChooseAll", "3 5 6 7");
        row("none in the filter", "live", "ChooseNone", "5");
        row("invert in the filter", "4-5", "ChooseOthers", "3 4");
        row("no row in the filter", "8", "ChooseAll", "3 5");
        row("kind", "", "Wind", "6 7");
        row("kind, despite the filter", "1", "Live loads", "3 4");
    }

    /// Each button makes one change.
    void choosingLoadCases()
    {
        const Desk desk(building());
        choose(desk.dialog, LoadCaseBox, QStringLiteral("Manually"));
        const auto table = find<PickTable>(desk.dialog, "TextLoadCases");
        table->setLeftOut({1, 2, 4, 6, 7});
        const auto bar = find<QWidget>(desk.dialog, "TextLoadCaseChoice");
        QVERIFY(bar->isEnabled());
        QSignalSpy changes(table, &PickTable::changed);
        QFETCH(const QString, filter);
        QFETCH(const QString, button);
        bar->findChild<QLineEdit*>()->setText(filter);
        const auto kinds = bar->findChild<QMenu*>();
        Q_EMIT kinds->aboutToShow();
        for (QAction* kind : kinds->actions())
            if (kind->text() == button)
                kind->trigger();
        if (button.startsWith(QLatin1String("Choose")))
            find<QAbstractButton>(*bar, qPrintable(button))->click();
        QStringList checked;
        for (int number : table->picked())
            checked << QString::number(number);
        QTEST(checked.join(QLatin1Char(' ')), "checked");
        QCOMPARE(changes.size(), filter == QLatin1String("8") ? 0 : 1);
        choose(desk.dialog, LoadCaseBox, QStringLiteral("All"));
        QVERIFY(!bar->isEnabled());
    }

    /// Lists without load cases are left out. The exported file contains the text that is shown.
    /// A line that is too long is elided and shown in a tool tip.
    void tableOfContents()
    {
        const auto window = open("contents.zob");
        trigger(*window, "TextOutput");
        const auto dialog = window->findChild<TextOutputDialog*>();
        QSignalSpy updates(dialog, &TextOutputDialog::choiceChanged);
        choose(*dialog, LoadCaseBox, QStringLiteral("Manually"));
        find<PickTable>(*dialog, "TextLoadCases")->chooseAllBut({1, 2, 3, 4, 5});
        find<PickTable>(*dialog, "TextCombinations")->chooseAllBut({101, 102});
        QVERIFY(updates.wait());
        QCOMPARE(updates.size(), 1); // opening the dialog is part of the event
        const QString file = path("contents.txt");
        const auto exported = [&] {
            answerFileDialog(file);
            find<QPushButton>(*dialog, "ExportContents")->click();
            QFile text(file);
            return text.open(QIODevice::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
        };
        QCOMPARE(exported(), QStringLiteral("1  System\n"
                                            "2  Loads\n"
                                            "    2.1  6: Wind in X\n"
                                            "    2.2  7: Wind in Y\n"
                                            "3  Support reactions (Extreme values)\n"
                                            "    3.1  6: Wind in X\n"
                                            "    3.2  7: Wind in Y\n"
                                            "    3.3  103: SLS, quasi-permanent\n"));
        find<PickTable>(*dialog, "TextLoadCases")->chooseAllBut({1, 2, 3, 4, 5, 6, 7});
        const auto contents = find<QTableView>(*dialog, "TextContents");
        const auto last = [contents] { return contents->model()->index(2, 0); };
        QTRY_COMPARE(last().data().toString(),
                     QStringLiteral("    2.1  103: SLS, quasi-permanent"));
        const auto toolTip = [&] {
            const QPoint place = contents->visualRect(last()).topLeft() + QPoint(5, 5);
            QHelpEvent help(QEvent::ToolTip, place, contents->viewport()->mapToGlobal(place));
            QApplication::sendEvent(contents->viewport(), &help);
            return QToolTip::text();
        };
        QCOMPARE(toolTip(), QString());
        contents->setMaximumWidth(100);
        QTRY_COMPARE(contents->width(), 100);
        QCOMPARE(toolTip(), QStringLiteral("2.1  103: SLS, quasi-permanent"));
        QCOMPARE(contents->horizontalScrollBar()->maximum(), 0);
        choose(*dialog, ExtentBox, QStringLiteral("No text output"));
        QTRY_VERIFY(!find<QPushButton>(*dialog, "CopyContents")->isEnabled());
    }

    void languages()
    {
        const auto window = open("languages.zob");
        trigger(*window, "TextOutput");
        auto dialog = window->findChild<TextOutputDialog*>();
        choose(*dialog, LoadCaseBox, QStringLiteral("Manually"));
        find<PickTable>(*dialog, "TextLoadCases")->chooseAllBut({3});
        const QString english = results(*dialog);
        find<QLineEdit>(*dialog, "ChoiceFilter")->setText(QStringLiteral("1-3"));
        trigger(*window, "German");
        dialog = window->findChild<TextOutputDialog*>();
        QCOMPARE(find<QLineEdit>(*dialog, "ChoiceFilter")->text(), QStringLiteral("1-3"));
        QVERIFY(dialog->isVisible() && dialog->isChanged());
        QVERIFY(results(*dialog).contains(QStringLiteral("Lastfälle (6 von 7): 1, 2, 4–7\n")));
        trigger(*window, "English");
        QCOMPARE(results(*window->findChild<TextOutputDialog*>()), english);
    }

private:
    std::unique_ptr<VKD_H_ZOBDoc> building() const
    {
        return VKD_H_ZOBDoc::open(copy("building.zob"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_textOutput)
#include "tst_textOutput.moc"
