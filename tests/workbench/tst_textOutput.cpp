#include "WidgetTestSupport.h"

#include <CombinationTable.h>
#include <ExtentFields.h>
#include <MainWindow.h>
#include <numberTexts.h>
#include <TextOutputDialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_InitTranslator.h>

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>

using testsupport::whenModal;
using namespace workbench;

namespace {
void makeProject(const QString& path)
{
    QProcess process;
    process.start(QStringLiteral(WORKBENCH),
                  {QStringLiteral("new"), path, QStringLiteral("--model"),
                   QStringLiteral("building"), QStringLiteral("--language"),
                   QStringLiteral("english")});
    process.waitForFinished();
}

template <class Widget>
Widget* find(const QWidget& window, const char* name)
{
    auto found = window.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

/// Chooses the button with this label in the box with this title.
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

/// The coupled widgets in which the user can pick.
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

QString labels(const QWidget& box)
{
    QStringList texts;
    const auto buttons = box.findChildren<QRadioButton*>();
    for (const QRadioButton* button : buttons)
        texts << button->text();
    return texts.join(QLatin1Char('|'));
}

/// By their accessible names or their labels.
QString tabStops(const QWidget& dialog)
{
    QStringList names;
    for (QWidget* next = dialog.nextInFocusChain(); next != &dialog;
         next = next->nextInFocusChain()) {
        const auto button = qobject_cast<QAbstractButton*>(next);
        if (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible())
            continue;
        const QString name = next->accessibleName();
        names << (name.isEmpty() && button ? button->text() : name);
    }
    return names.join(QLatin1Char('|'));
}

const QString ExtentBox = QStringLiteral("Extent of the text output");
const QString LoadCaseBox = QStringLiteral("Load cases in the text output");
const QString CombinationBox = QStringLiteral("Combinations in the text output");
const QString Proposed = QStringLiteral("Printed lists: System, Loads, Support reactions. "
                                        "Result values: Extreme values\n"
                                        "Printed load cases (7 of 7): 1–7\n"
                                        "Printed combinations (3 of 3): 101–103");
} // namespace

class tst_textOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void choices_data();
    void choices();
    void picksByHand();
    void kinds_data();
    void kinds();
    void rowFollowsKinds();
    void nothingToPick();
    void kept();
    void languages();
    void leaving_data();
    void leaving();
    void savedAs();
    void namesAndTabOrder();
    void numbers_data();
    void numbers();

private:
    QString path() const { return m_folder.filePath(QStringLiteral("project.zob")); }
    void show(MainWindow& window);

    QTemporaryDir m_folder;
};

void tst_textOutput::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       m_folder.filePath(QStringLiteral("ini")));
}

void tst_textOutput::init()
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    VKD_QT_InitTranslator::languageChanged();
    QFile::remove(path());
    makeProject(path());
}

void tst_textOutput::show(MainWindow& window)
{
    window.show();
    QVERIFY(window.openProject(path()));
    find<QAction>(window, "TextOutput")->trigger();
}

void tst_textOutput::choices_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("live");
    QTest::addColumn<QString>("lines"); // in place of those of the proposal
    const auto row = [](const QString& box, const char* label, const char* live,
                        const char* lines) {
        QTest::newRow(label) << box << QString::fromLatin1(label) << QString::fromLatin1(live)
                             << QString::fromUtf8(lines);
    };
    row(ExtentBox, "Manually controlled", "extent+combinations", "");
    row(ExtentBox, "No text output", "combinations",
        "Printed lists: none\n"
        "Printed load cases: none, as neither loads nor results are printed\n"
        "Printed combinations: none, as no results are printed");
    row(ExtentBox, "Full text output", "combinations",
        "Printed lists: System, Loads, Displacements, Internal forces, Support reactions. "
        "Result values: All nodes and elements");
    row(LoadCaseBox, "Manually", "extent+load cases+combinations", "");
    row(CombinationBox, "All Quasi-Permanent", "extent", "\n\nPrinted combinations (1 of 3): 103");
}

void tst_textOutput::choices()
{
    QFETCH(const QString, box);
    QFETCH(const QString, label);
    QFETCH(const QString, lines);
    const auto document = VKD_H_ZOBDoc::open(path());
    TextOutputDialog dialog(document->index(), nullptr);
    QCOMPARE(results(dialog), Proposed);
    QCOMPARE(live(dialog), QStringLiteral("extent+combinations"));
    choose(dialog, box, label);
    QTEST(live(dialog), "live");
    QStringList expected = Proposed.split(QLatin1Char('\n'));
    const QStringList others = lines.split(QLatin1Char('\n'));
    for (int i = 0; i < others.size(); ++i)
        if (!others[i].isEmpty())
            expected[i] = others[i];
    QCOMPARE(results(dialog), expected.join(QLatin1Char('\n')));
}

void tst_textOutput::picksByHand()
{
    const auto document = VKD_H_ZOBDoc::open(path());
    TextOutputDialog dialog(document->index(), nullptr);
    dialog.show();
    auto table = find<PickTable>(dialog, "TextLoadCases");
    auto result = find<QLabel>(dialog, "LoadCaseResult");
    const QString all = result->text();
    QTest::keyClick(table, Qt::Key_Space);
    QCOMPARE(result->text(), all);
    choose(dialog, LoadCaseBox, QStringLiteral("Manually"));
    for (int row = 0; row < 7; ++row) {
        QTest::keyClick(table, Qt::Key_Space);
        if (row == 3)
            QCOMPARE(result->text(), QStringLiteral("Printed load cases (3 of 7): 5–7"));
        QTest::keyClick(table, Qt::Key_Down);
    }
    QCOMPARE(result->text(), QStringLiteral("Printed load cases: none"));
    choose(dialog, LoadCaseBox, QStringLiteral("All"));
    QCOMPARE(result->text(), all);
    find<QCheckBox>(dialog, "ReactionList")->click();
    QVERIFY(results(dialog).startsWith(QLatin1String("Printed lists: System, Loads\n") + all));
    find<QCheckBox>(dialog, "LoadList")->click();
    QVERIFY(results(dialog).contains(QLatin1String("none, as neither loads")));
}

void tst_textOutput::kinds_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* title, int kind) {
        QTest::newRow(title) << QString::fromUtf8(title) << kind;
    };
    row("", 0);
    row("Tragfähigkeit, ständig und vorübergehend", 0);
    row("Außergewöhnlich, Anprall", 3);
    row("Accidental: impact", 3);
    row("Brandfall", 4);
    row("ULS fire", 4);
    row("Erdbeben X+0.3Y", 5);
    row("SEISMIC", 5);
    row("GZG, charakteristisch", 6);
    row("SLS, rare", 6);
    row("häufig", 7);
    row("SLS frequent", 7);
    row("Gebrauchstauglichkeit, quasi-ständig", 8);
    row("quasi permanent", 8);
    row("nicht-häufig", 9);
    row("Non-frequent", 9);
}

void tst_textOutput::kinds()
{
    QFETCH(const QString, title);
    CombinationTable table({{101, title, 2}}, nullptr, "Combinations");
    const int kind = table.kinds().value(101);
    QTEST(kind, "kind");
    table.setKinds({{101, 4}});
    QCOMPARE(table.numbersOf(4), QVector<int>{101});
    for (const QMap<int, int>& strange : {QMap<int, int>(), {{7, 3}}, {{101, 2}}, {{101, -1}}}) {
        table.setKinds(strange);
        QCOMPARE(table.kinds().value(101), kind);
    }
}

/// A kind is on offer as soon as a combination has it; a kept choice of a kind without any is none.
void tst_textOutput::rowFollowsKinds()
{
    const auto document = VKD_H_ZOBDoc::open(path());
    TextOutputDialog dialog(document->index(), nullptr);
    dialog.show();
    auto table = dialog.findChild<CombinationTable*>();
    const auto row = [&] { return labels(*table->parentWidget()); };
    QCOMPARE(row(), QStringLiteral("Manually|All Quasi-Permanent"));
    auto box = table->findChild<VKD_QT4_ComboBox*>();
    box->setCurrentId(5);
    QCOMPARE(row(), QStringLiteral("Manually|All Earthquake|All Quasi-Permanent"));
    QVERIFY(!table->is_read_only() && box->isEnabled());
    choose(dialog, CombinationBox, QStringLiteral("All Earthquake"));
    QVERIFY(table->is_read_only() && !box->isEnabled());
    QCOMPARE(find<QLabel>(dialog, "CombinationResult")->text(),
             QStringLiteral("Printed combinations (1 of 3): 101"));
    TextOutputState state = dialog.state();
    QCOMPARE(state.combinations, QStringLiteral("checked:m_All_E"));
    state.kinds[101] = 0;
    dialog.setState(state);
    QCOMPARE(row(), QStringLiteral("Manually|All Quasi-Permanent"));
    QCOMPARE(dialog.state().combinations, QStringLiteral("checked:m_Manually"));
}

void tst_textOutput::nothingToPick()
{
    const auto document = VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("empty.zob")));
    TextOutputDialog dialog(document->index(), nullptr);
    dialog.show();
    choose(dialog, LoadCaseBox, QStringLiteral("Manually"));
    QTest::keyClick(find<PickTable>(dialog, "TextLoadCases"), Qt::Key_Space);
    QVERIFY(results(dialog).endsWith(
        QLatin1String("\nPrinted load cases: none\nPrinted combinations: none")));
    QCOMPARE(labels(*find<PickTable>(dialog, "TextCombinations")->parentWidget()),
             QStringLiteral("Manually"));
}

/// Cancel drops, OK stores, and the file has it.
void tst_textOutput::kept()
{
    for (const bool isKept : {false, true}) {
        QString chosen;
        {
            MainWindow window({});
            show(window);
            auto dialog = window.findChild<TextOutputDialog*>();
            QVERIFY(!dialog->isChanged());
            choose(*dialog, ExtentBox, QStringLiteral("Full text output"));
            find<QCheckBox>(*dialog, "ForceList")->setChecked(true);
            choose(*dialog, LoadCaseBox, QStringLiteral("Manually"));
            find<PickTable>(*dialog, "TextLoadCases")->setLeftOut({1, 6});
            find<PickTable>(*dialog, "TextCombinations")->setLeftOut({102});
            dialog->findChild<CombinationTable*>()->setKinds({{102, 3}});
            choose(*dialog, CombinationBox, QStringLiteral("All Accidential"));
            chosen = results(*dialog);
            QVERIFY(dialog->isChanged() && window.isWindowModified());
            QPushButton* ok = find<QWidget>(*dialog, "okayandcancelbutton")
                                  ->findChildren<QPushButton*>()
                                  .value(isKept ? 0 : 1);
            ok->click();
            QVERIFY(!window.isWindowModified());
            QVERIFY(window.close());
        }
        MainWindow again({});
        show(again);
        auto dialog = again.findChild<TextOutputDialog*>();
        QCOMPARE(results(*dialog), isKept ? chosen : Proposed);
        QVERIFY(!dialog->isChanged());
        choose(*dialog, ExtentBox, QStringLiteral("Manually controlled"));
        choose(*dialog, CombinationBox, QStringLiteral("Manually"));
        QCOMPARE(results(*dialog).contains(QLatin1String("Internal forces")), isKept);
        QCOMPARE(results(*dialog).endsWith(QLatin1String("101, 103")), isKept);
        dialog->reject();
    }
}

void tst_textOutput::languages()
{
    MainWindow window({});
    show(window);
    choose(*window.findChild<TextOutputDialog*>(), LoadCaseBox, QStringLiteral("Manually"));
    find<PickTable>(*window.findChild<TextOutputDialog*>(), "TextLoadCases")->setLeftOut({2, 3});
    const QString english = results(*window.findChild<TextOutputDialog*>());
    find<QAction>(window, "German")->trigger();
    auto dialog = window.findChild<TextOutputDialog*>();
    QVERIFY(dialog->isVisible() && dialog->isChanged());
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Textausgabe"));
    QCOMPARE(results(*dialog),
             QStringLiteral("Ausgegebene Listen: System, Lasten, Auflagerkräfte. Ergebniswerte: "
                            "Extremwerte\nAusgegebene Lastfälle (5 von 7): 1, 4–7\n"
                            "Ausgegebene Kombinationen (3 von 3): 101–103"));
    QCOMPARE(labels(*dialog),
             QStringLiteral("Manuell gesteuert|Keine Textausgabe|Vollständige Textausgabe|"
                            "Manuell|Alle|Manuell|Alle quasi-ständigen"));
    find<QAction>(window, "English")->trigger();
    QCOMPARE(results(*window.findChild<TextOutputDialog*>()), english);
    window.findChild<TextOutputDialog*>()->reject();
}

void tst_textOutput::leaving_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void tst_textOutput::leaving()
{
    QFETCH(const int, answer);
    {
        MainWindow window({});
        show(window);
        choose(*window.findChild<TextOutputDialog*>(), ExtentBox, QStringLiteral("No text output"));
        bool wasAsked = false;
        whenModal([&](QWidget* box) {
            wasAsked = true;
            qobject_cast<QMessageBox*>(box)->button(QMessageBox::StandardButton(answer))->click();
        });
        QTEST(window.close(), "leaves");
        QVERIFY(wasAsked);
    }
    const auto document = VKD_H_ZOBDoc::open(path());
    const TextOutputDialog dialog(document->index(), nullptr);
    QTEST(results(dialog) != Proposed, "isStored");
}

/// The choice in the open dialog goes into the new project, and the old one stays as it was.
void tst_textOutput::savedAs()
{
    const QString copy = m_folder.filePath(QStringLiteral("copy.zob"));
    {
        MainWindow window({});
        show(window);
        choose(*window.findChild<TextOutputDialog*>(), ExtentBox, QStringLiteral("No text output"));
        whenModal([copy](QWidget* box) {
            auto name = find<QLineEdit>(*box, "fileNameEdit");
            name->setText(copy);
            QTest::keyClick(name, Qt::Key_Return);
        });
        find<QAction>(window, "SaveAs")->trigger();
        QVERIFY(window.close());
    }
    for (const QString& project : {path(), copy}) {
        const auto document = VKD_H_ZOBDoc::open(project);
        const TextOutputDialog dialog(document->index(), nullptr);
        QCOMPARE(results(dialog) == Proposed, project == path());
    }
}

/// In reading order, also when the row of kinds was made anew. A row that has the focus is one
/// stop.
void tst_textOutput::namesAndTabOrder()
{
    const auto document = VKD_H_ZOBDoc::open(path());
    TextOutputDialog dialog(document->index(), nullptr);
    dialog.show();
    choose(dialog, LoadCaseBox, QStringLiteral("Manually"));
    dialog.findChild<CombinationTable*>()->setKinds({{101, 9}});
    QTRY_COMPARE(tabStops(dialog),
                 QStringLiteral("Manually controlled|System|Loads|Displacements|Internal "
                                "forces|Support reactions|Result values|"
                                "Manually|All|Load cases|"
                                "Manually|All Quasi-Permanent|All Non-Frequent|Combinations|"
                                "Kind of combination 101|Kind of combination 102|"
                                "Kind of combination 103|OK|Cancel"));
}

void tst_textOutput::numbers_data()
{
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << QVector<int>() << QString();
    QTest::newRow("pairs") << QVector<int>{1, 2, 4, 5} << QStringLiteral("1, 2, 4, 5");
    QTest::newRow("runs") << QVector<int>{1, 2, 3, 7, 9, 10, 11, 12}
                          << QStringLiteral("1–3, 7, 9–12");
}

void tst_textOutput::numbers()
{
    QFETCH(const QVector<int>, numbers);
    QTEST(shownNumbers(numbers), "shown");
    const QSet<int> all(numbers.begin(), numbers.end());
    QCOMPARE(numbersOfKept(keptNumbers(all)), all);
}

PLIB_WIDGET_TEST_MAIN(tst_textOutput)
#include "tst_textOutput.moc"
