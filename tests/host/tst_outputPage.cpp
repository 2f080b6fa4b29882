#include "LanguageSupport.h"
#include "OutputDesk.h"
#include "WidgetTestSupport.h"

#include <vkd_lib_value.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace testsupport;

using Desk = OutputDesk;

/// Receives a signal that is known only to the meta-object of its sender.
class HostStates : public QObject
{
    Q_OBJECT

public:
    explicit HostStates(QObject* steps)
    {
        connect(steps, SIGNAL(hostStateRestored(QString)), this, SIGNAL(restored(QString)));
    }

Q_SIGNALS:
    void restored(const QString& state);
};

namespace {
struct Step
{
    QString name;
    std::function<void()> run;
};

/// Returns steps of each kind. `offer` changes the host's load cases.
std::vector<Step> stepsOn(Desk& desk, const std::function<void(const QString&)>& offer)
{
    return {
        {QStringLiteral("Scale \"Engineering scale\""), [&] { desk.choose("ScaleGroup", 0); }},
        {QStringLiteral("Scale \"1:50\""), [&] { desk.chooseScale("1:50"); }},
        {QStringLiteral("Uncheck \"System\""),
         [&] { desk.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked); }},
        {QStringLiteral("Page Format \"Landscape\""), [&] { desk.choose("FormatGroup", 1); }},
        {QStringLiteral("View \"X/Z -Plane\""), [&] { desk.choose("PerspectiveGroup", 1); }},
        {QStringLiteral("Iso Areas"),
         [&] { desk.find<QCheckBox>("Check: Filled Isolines")->click(); }},
        {QStringLiteral("Font Size"),
         [&] {
             const auto font = desk.find<QLineEdit>("m_boxedEdit_edit");
             font->setText(QStringLiteral("3,5"));
             QTest::keyClick(font, Qt::Key_Enter);
         }},
        {QStringLiteral("Check \"%1, 2 : Snow\"").arg(desk.plotWithRows()->text(0)),
         [&] { desk.plotWithRows()->child(1)->setCheckState(0, Qt::Checked); }},
        {QStringLiteral("Load cases"),
         [&desk, offer] {
             const auto steps = desk.find<QObject>("steps");
             QMetaObject::invokeMethod(steps, "begin");
             offer(QStringLiteral("1"));
             desk.page.readXMLstring(part("List_4", "\nChecked:@SYS   $G00   ^G01\n"));
             QMetaObject::invokeMethod(steps, "end", Q_ARG(QString, QStringLiteral("Load cases")),
                                       Q_ARG(QString, QStringLiteral("1")));
         }},
        {QStringLiteral("Default Settings"),
         [&] { desk.find<QPushButton>("Button: Default settings")->click(); }},
    };
}
} // namespace

class tst_outputPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setLanguage(English);
        vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, 1);
    }

    void controlsInTheScript()
    {
        Desk desk(m_project);
        desk.page.slotDefaultSettings();
        const auto size = [&desk] { return desk.page.getTORVAL_SIZE(true); };
        const QString one = QStringLiteral("SIZE -URS SC 50*1.e+10 MARG NO FORM STAN");
        const QString two =
            QStringLiteral("SIZ2 SPLI PICT\nSIZE -URS SC %1 SPLI  2x1 MARG NO FORM STAN");
        QCOMPARE(size(), two.arg(QLatin1String("0")));
        desk.choose("ScaleGroup", 0);
        QCOMPARE(size(), two.arg(QLatin1String("-")));
        desk.chooseScale("1:50");
        QCOMPARE(size(), two.arg(QLatin1String("50*1.e+10")));
        desk.choose("PicturesGroup", 0);
        QCOMPARE(size(), one);
        desk.choose("FormatGroup", 0); // already checked, but still sets two pictures
        QCOMPARE(size(), two.arg(QLatin1String("50*1.e+10")));
        desk.choose("FormatGroup", 1);
        QCOMPARE(size(), QString(one).remove(QLatin1Char('-')));

        auto font = desk.find<QLineEdit>("m_boxedEdit_edit");
        font->selectAll();
        QTest::keyClicks(font, QStringLiteral("3,5"));
        QTest::keyClick(font, Qt::Key_Enter);
        QTest::keyClicks(font, QStringLiteral("x")); // refused, so the script does not contain it
        QCOMPARE(desk.page.getTORVAL_SCHR(true), QStringLiteral("SCHH H6 0.35"));
        desk.find<QCheckBox>("Check: Filled Isolines")->click();
        QVERIFY(desk.page.getTORVAL(true).contains(QLatin1String("\n#define FILL=VERT\n")));
    }

    void linesOfTheScript()
    {
        Desk desk(m_project);
        QTreeWidgetItem* row = desk.plotWithRows()->child(1);
        row->setCheckState(0, Qt::Checked);
        const QStringList lines = desk.page.getTORVAL(true).split(QLatin1Char('\n'));
        const auto script = desk.find<QObject>("script");
        const auto itemOf = [script](int line) {
            QTreeWidgetItem* item = nullptr;
            QMetaObject::invokeMethod(script, "itemOfLine", Q_RETURN_ARG(QTreeWidgetItem*, item),
                                      Q_ARG(int, line));
            return item;
        };
        const auto linesOf = [script](QTreeWidgetItem* item) {
            QVector<int> range;
            QMetaObject::invokeMethod(script, "linesOfItem", Q_RETURN_ARG(QVector<int>, range),
                                      Q_ARG(QTreeWidgetItem*, item));
            return range;
        };
        const QVector<int> range = linesOf(row);
        QCOMPARE(lines.value(range.value(0)), QStringLiteral("LC 2 DESI 2"));
        QCOMPARE(itemOf(range.value(0) + range.value(1) - 1), row);
        QCOMPARE(itemOf(0), nullptr);
        desk.page.slotDefaultSettings();
        QCOMPARE(itemOf(range.value(0)), nullptr); // the tree has been rebuilt
        desk.plotWithRows()->setCheckState(0, Qt::Checked);
        QVERIFY(linesOf(desk.plotWithRows()).isEmpty() && linesOf(nullptr).isEmpty());
    }

    void aNewPage()
    {
        Desk desk(m_project);
        QCOMPARE(desk.page.objectName(), QStringLiteral("Widget_GraphOut"));
        QVERIFY(desk.page.checkVals());
        QCOMPARE(desk.group("PerspectiveGroup")->selectedButton(), -1); // there is no animator
        QCOMPARE(desk.page.getTORVAL_BEOB(true), QStringLiteral("TYPE EG3"));
        QVERIFY(desk.find<QCheckBox>("Check: Filled Isolines")->isEnabled());
        QCOMPARE(desk.page.getTORVAL_SCHR(false), QStringLiteral("SCHR H6 0.2"));
        std::vector<QString> lines{QStringLiteral("old")};
        desk.page.getTORVAL_LFs(lines, true);
        QVERIFY(lines.size() > 1 && lines[0] != QLatin1String("old"));
        std::vector<QString> scripts{QStringLiteral("first")};
        QCOMPARE(desk.page.getTORVAL(scripts, true), 1);
        QCOMPARE(scripts.size(), std::size_t(2));
        for (int i = 0; i < desk.tree()->topLevelItemCount(); ++i)
            desk.tree()->topLevelItem(i)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(desk.page.getTORVAL(QStringLiteral("more"), true), QString());
        desk.page.readXMLstring(part("List_4", "\nChecked:@SYS   $G00   ^G01\n"));
        QVERIFY(desk.page.getTORVAL(QStringLiteral("more"), true)
                    .contains(QLatin1String("\nmore\nEND")));

        HostProject bare{QString()};
        Desk empty(bare);
        QVERIFY(!empty.find<QCheckBox>("Check: Filled Isolines")->isEnabled());
    }

    /// Names that share one memory buffer still form two rows.
    void rowsOfOneBuffer()
    {
        const QString both = QStringLiteral("1 : Snow on the roof");
        Desk desk(m_project);
        desk.page.setUsedNumbersAndNames({{1, 1, QString::fromRawData(both.constData(), 8)},
                                          {1, 2, QString::fromRawData(both.constData(), 20)}});
        QSet<QString> rows;
        for (QTreeWidgetItemIterator item(desk.tree()); *item; ++item)
            if ((*item)->text(0).startsWith(QLatin1String("1 :")))
                rows << (*item)->text(0);
        QCOMPARE(rows, QSet<QString>({QStringLiteral("1 : Snow"), both}));
    }

    void defaultSettings()
    {
        Desk desk(m_project);
        const QString fresh = desk.page.writeXMLstring();
        desk.chooseScale("1:100");
        desk.choose("FormatGroup", 1);
        QVERIFY(!desk.group("PicturesGroup")->isEnabled());
        QCOMPARE(desk.group("PicturesGroup")->selectedButton(), 0);
        desk.choose("PerspectiveGroup", 0);
        desk.find<QCheckBox>("Check: Filled Isolines")->click();
        desk.find<QLineEdit>("m_boxedEdit_edit")->setText(QStringLiteral("7"));
        desk.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QVERIFY(desk.page.writeXMLstring() != fresh);
        desk.find<QPushButton>("Button: Default settings")->click();
        QCOMPARE(desk.page.writeXMLstring(), fresh);
        QVERIFY(desk.group("PicturesGroup")->isEnabled());
        QCOMPARE(desk.find<QComboBox>("box_scale")->currentText(), QStringLiteral("1:100"));
    }

    /// Undo and redo exactly restore the page and the host's load cases. The page has no animator,
    /// so it initially has no view.
    void undoingEachStep()
    {
        Desk desk(m_project);
        const auto steps = desk.find<QObject>("steps");
        const auto isOffered = [](const QString& host) { return host.contains(QLatin1Char('2')); };
        const auto offer = [&](const QString& host) {
            desk.page.setUsedNumbersAndNames(isOffered(host) ? LoadCases : Rows(1, LoadCases[0]));
        };
        QMetaObject::invokeMethod(steps, "restart", Q_ARG(QString, QStringLiteral("1 2")));
        HostStates restored(steps);
        connect(&restored, &HostStates::restored, &desk.page, offer);
        const auto undo = desk.find<QAction>("undo");
        QStringList states{desk.page.writeXMLstring()};
        const std::vector<Step> list = stepsOn(desk, offer);
        for (const Step& step : list) {
            step.run();
            QCOMPARE(undo->text(), QStringLiteral("&Undo ") + step.name);
            states << desk.page.writeXMLstring();
        }
        QApplication::setActiveWindow(&desk.page);
        desk.tree()->setFocus();
        const auto font = desk.find<QLineEdit>("m_boxedEdit_edit");
        const QString refused = QStringLiteral("1.2.3");
        for (int i = states.size() - 2; i >= 0; --i) {
            if (list[std::size_t(i)].name == QLatin1String("Iso Areas"))
                font->setText(refused); // stays in the field until the font size changes
            QTest::keyClick(desk.tree(), Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(desk.page.writeXMLstring(), states[i]);
        }
        QCOMPARE(font->text(), refused);
        QVERIFY(!undo->isEnabled() && desk.plotWithRows());
        for (int i = 1; i < states.size(); ++i) {
            desk.find<QAction>("redo")->trigger();
            QCOMPARE(desk.page.writeXMLstring(), states[i]);
        }
    }

    /// A page continues with the steps of another page only if it is in the same state.
    void continuingTheSteps()
    {
        Desk desk(m_project);
        const auto steps = desk.find<QObject>("steps");
        const auto undo = desk.find<QAction>("undo");
        const QString other = desk.page.writeXMLstring();
        for (int entry : {0, 1, 2})
            desk.choose("PerspectiveGroup", entry);
        const QString last = desk.page.writeXMLstring();
        for (int undone = 0; undone < 2; ++undone)
            undo->trigger();
        const QString state = desk.page.writeXMLstring();
        QByteArray bytes;
        QMetaObject::invokeMethod(steps, "steps", Q_RETURN_ARG(QByteArray, bytes));
        const auto areTaken = [&bytes](QObject* by) {
            bool isDone = false;
            QMetaObject::invokeMethod(by, "setSteps", Q_RETURN_ARG(bool, isDone),
                                      Q_ARG(QByteArray, bytes));
            return isDone;
        };
        desk.page.readXMLstring(other); // reading a state does not add an undo step
        QVERIFY(!undo->isEnabled() && !areTaken(steps));
        desk.page.readXMLstring(state);
        QVERIFY(areTaken(steps));
        for (int redone = 0; redone < 2; ++redone)
            desk.find<QAction>("redo")->trigger();
        QCOMPARE(desk.page.writeXMLstring(), last);
        QVERIFY(undo->text().startsWith(QLatin1String("&Undo View \"")));
    }

    /// A page that replaces another page shows the names of its steps in the current language.
    void namesInGerman()
    {
        Desk desk(m_project);
        QMetaObject::invokeMethod(desk.find<QObject>("steps"), "restart",
                                  Q_ARG(QString, QString()));
        const std::vector<Step> steps = stepsOn(desk, [](const QString&) {});
        for (std::size_t i = 0; i + 2 < steps.size(); ++i) // without those of the host
            steps[i].run();
        QByteArray bytes;
        QMetaObject::invokeMethod(desk.find<QObject>("steps"), "steps",
                                  Q_RETURN_ARG(QByteArray, bytes));
        setLanguage(German);
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English); // the catalogue is loaded only once
        Desk german(m_project);
        setLanguage(German);
        german.page.readXMLstring(desk.page.writeXMLstring());
        QMetaObject::invokeMethod(german.find<QObject>("steps"), "setSteps",
                                  Q_ARG(QByteArray, bytes));
        const QString plot = german.plotWithRows()->text(0);
        QStringList texts;
        for (const auto next = german.find<QAction>("undo"); next->isEnabled(); next->trigger())
            texts << next->text().section(QLatin1Char(' '), 1);
        setLanguage(English);
        QCOMPARE(texts.join(QLatin1Char('|')),
                 QStringLiteral("„%1, 2 : Snow“ ankreuzen|Schriftgröße|Isoflächen|"
                                "Ansicht „X/Z-Ebene“|Seitenformat „Querformat“|"
                                "Häkchen von „System“ entfernen|Maßstab „1:50“|"
                                "Maßstab „Ingenieurmaßstab“")
                     .arg(plot));
    }

    /// The counts below the page are updated when the host requests the script, and automatically
    /// after other changes.
    void countsAndWarning()
    {
        Desk desk(m_project);
        Rows rows;
        for (int number = 1; number <= 600; ++number)
            rows.push_back({1, number, QString::number(number)});
        desk.page.setUsedNumbersAndNames(rows);
        desk.page.readXMLstring(part("List_4", "\nChecked:@SYS   $G00   ^G01\n"));
        const QString script = desk.page.getTORVAL(true);
        const auto line = desk.find<QLabel>("scriptCounts");
        const auto counts = [line] { return line->accessibleName(); };
        const QString text =
            QStringLiteral("Plots: %1, pictures: %2, sheets: %3, script lines: %4");
        QCOMPARE(counts(), text.arg(1).arg(1).arg(1).arg(script.count(QLatin1Char('\n'))));

        QTreeWidgetItem* plot = desk.tree()->topLevelItem(1)->child(0)->child(0);
        QCOMPARE(plot->childCount(), 600);
        QString told;
        const auto click = [&](QMessageBox::StandardButton answer) {
            desk.tree()->setCurrentItem(plot);
            whenModal([answer, &told](QWidget* box) {
                told = box->property("text").toString().section(QLatin1Char(' '), 3, 4);
                qobject_cast<QMessageBox*>(box)->button(answer)->click();
            });
            for (int press : {1, 2}) { // the second one while the question is open
                Q_UNUSED(press)
                QTest::keyClick(desk.tree(), Qt::Key_Space);
            }
            QCoreApplication::processEvents();
            return plot->checkState(0);
        };
        plot->child(0)->setCheckState(0, Qt::Checked);
        QCOMPARE(click(QMessageBox::No), Qt::PartiallyChecked);
        QCOMPARE(told, QStringLiteral("599 pictures"));
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(click(QMessageBox::Yes), Qt::Checked);
        QTRY_VERIFY(counts().startsWith(QLatin1String("Plots: 2, pictures: 601, sheets: 301, ")));
        for (const Qt::CheckState state : {Qt::Unchecked, Qt::Checked}) { // no further confirmation
            QTest::keyClick(desk.tree(), Qt::Key_Space);
            QCOMPARE(plot->checkState(0), state);
        }
        desk.choose("FormatGroup", 1);
        QTRY_VERIFY(counts().contains(QLatin1String("sheets: 601, ")));
        desk.page.hide();
        desk.page.readXMLstring(part("List_4", "\nUnchecked:@SYS\n"));
        desk.page.show();
        QTRY_COMPARE(counts(), QStringLiteral("No plot is checked, so there is no script."));

        auto closing = std::make_unique<Desk>(m_project); // the host closes it during the question
        closing->page.setUsedNumbersAndNames(rows);
        closing->tree()->setCurrentItem(closing->tree()->topLevelItem(1)->child(0)->child(0));
        whenModal([&](QWidget*) { closing.reset(); });
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(closing->tree(), Qt::Key_Space);
        QTRY_VERIFY(!closing && !QApplication::activeModalWidget());
    }

    /// Each icon shows a sheet with its shadow and the lines between its pictures. Compares the
    /// colours along a row and a column, and the number of pixels of each colour.
    void picturesOfTheSplit()
    {
        HostProject project(QStringLiteral("hall"));
        Desk desk(project, VKD_P_GraphicalOutput_Split);
        // The sheets of this page are not counted.
        QVERIFY(!desk.find<QLabel>("scriptCounts")->isVisible());
        const auto combo = desk.find<QComboBox>("COMBO_PAGESPLITTING");
        QStringList texts;
        for (int id = 0; id < combo->count(); ++id) {
            const QImage image = combo->itemIcon(id).pixmap(32).toImage();
            QString row, column;
            int lines = 0, shadows = 0;
            for (int i = 0; i < image.width(); ++i) {
                const QRgb paper = qRgb(255, 255, 255), line = qRgb(0, 0, 255);
                const auto mark = [&](QRgb pixel) {
                    return pixel == paper  ? QString()
                           : pixel == line ? QStringLiteral(" %1").arg(i)
                                           : QStringLiteral(" (%1)").arg(i);
                };
                row += mark(image.pixel(i, 9));
                column += mark(image.pixel(8, i));
                for (int j = 0; j < image.height(); ++j) {
                    lines += image.pixel(i, j) == line;
                    shadows += image.pixel(i, j) == qRgb(0, 0, 128);
                }
            }
            texts << row + QLatin1Char(':') + column +
                         QStringLiteral(": %1 %2").arg(lines).arg(shadows);
        }
        QCOMPARE(texts.join(QLatin1Char('\n')),
                 QStringLiteral(" 5 25 (26): (2) 3 29: 92 47\n"
                                " 5 25 (26): (2) 3 16 29: 111 47\n"
                                " 5 15 25 (26): (2) 3 16 29: 135 47\n"
                                " 5 15 25 (26): (2) 3 12 20 29: 153 47\n"
                                " 2 28 (29): (5) 6 26: 92 47\n"
                                " 2 15 28 (29): (5) 6 16 26: 135 47"));
    }

    void savedAndRestored_data()
    {
        const Columns<int, QString, QString> row("kind", "model", "size");
        const QString landscape = QStringLiteral("\nSIZE URS M 25*1.e+10 RAND NEIN FORM STAN\n");
        row("standard", VKD_P_GraphicalOutput_Standard, "building", landscape);
        row("split", VKD_P_GraphicalOutput_Split, "hall",
            "SIZE DINA \"URS\" M 25 TEIL 1X1|SIZE DINA \"URS\" $(XYZ) TEIL 1X1more\n");
        row("prefix", VKD_P_GraphicalOutput_Prefix, "slab", landscape);
    }

    void savedAndRestored()
    {
        QFETCH(int, kind);
        QFETCH(QString, model);
        QFETCH(QString, size);
        HostProject project(model);
        const auto progname = VKD_P_WidgetGraphicalOutput_Progname(kind);
        Desk desk(project, progname);
        desk.chooseScale("1:25");
        desk.page.readXMLstring(part("Font", "2,5"));
        if (progname == VKD_P_GraphicalOutput_Split) {
            desk.find<QComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(4);
        } else {
            desk.choose("FormatGroup", 1);
            desk.choose("PerspectiveGroup", 2);
            desk.find<QCheckBox>("Check: Filled Isolines")->click();
        }
        if (QTreeWidgetItem* plot = desk.plotWithRows()) {
            plot->setCheckState(0, Qt::Unchecked);
            plot->child(1)->setCheckState(0, Qt::Checked);
        }
        const QString saved = desk.page.writeXMLstring();
        const QString script = desk.page.getTORVAL(QStringLiteral("more\n"), false);
        QVERIFY2(script.contains(size) && script.contains(QLatin1String("more\n")),
                 qPrintable(script));
        QVERIFY(saved.contains(QLatin1String("2,5")));
        Desk again(project, progname);
        QVERIFY(again.page.writeXMLstring() != saved);
        again.page.readXMLstring(saved);
        QCOMPARE(again.page.writeXMLstring(), saved);
        QCOMPARE(again.page.getTORVAL(QStringLiteral("more\n"), false), script);
    }

    void stringsOfOtherPages_data()
    {
        // state: scale entry, its row, format, pictures, view, fill
        const Columns<QString, QString> row("xml", "state");
        row("nothing", QString(), "0 1:20 0 1 3 1");
        row("automatic", part("Scale", "-"), "0 Auto 0 1 3 1");
        row("a hyphen anywhere", part("Scale", "1:5-"), "0 Auto 0 1 3 1");
        row("an unknown scale", part("Scale", "1:7"), "1 1:20 0 1 3 1");
        row("a scale that fits", part("Scale", "0"), "1 1:20 0 1 3 1");
        row("no fill", part("Fill", "0"), "0 1:20 0 1 3 0");
        row("a one anywhere", part("Fill", "210"), "0 1:20 0 1 3 1");
        row("landscape", part("Format", "1"), "0 1:20 1 0 3 1");
        row("landscape and two pictures", part("Format", "1") + part("Part", "1"),
            "0 1:20 1 1 3 1");
        row("no number", part("View", "x"), "0 1:20 0 1 0 1");
        row("a number without a button", part("View", "9") + part("Format", "7"), "0 1:20 0 1 3 1");
        row("a newer page", part("Colour", "1") + part("View", "2") + QStringLiteral("<broken"),
            "0 1:20 0 1 2 1");
    }

    void stringsOfOtherPages()
    {
        QFETCH(QString, xml);
        Desk desk(m_project);
        desk.page.slotDefaultSettings();
        desk.page.readXMLstring(part("Scale", "1:20") + part("Fill", "1"));
        const auto choice = [&desk] {
            return vkd_qt_readXMLpart(desk.page.writeXMLstring(), 0, QStringLiteral("List_4"),
                                      nullptr);
        };
        const QString before = choice();
        desk.page.readXMLstring(xml);
        QTEST(QStringLiteral("%1 %2 %3 %4 %5 %6")
                  .arg(desk.group("ScaleGroup")->selectedButton())
                  .arg(desk.find<QComboBox>("box_scale")->currentText())
                  .arg(desk.group("FormatGroup")->selectedButton())
                  .arg(desk.group("PicturesGroup")->selectedButton())
                  .arg(desk.group("PerspectiveGroup")->selectedButton())
                  .arg(desk.find<QCheckBox>("Check: Filled Isolines")->isChecked()),
              "state");
        QCOMPARE(choice(), before); // a string without this part does not change it
    }

private:
    HostProject m_project{QStringLiteral("slab")};
};

PLIB_WIDGET_TEST_MAIN(tst_outputPage)
#include "tst_outputPage.moc"
