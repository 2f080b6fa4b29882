#include "ProjectTest.h"
#include "sheet/SheetView.h"
#include "window/output/CameraRollback.h"
#include "window/output/TreeViewState.h"
#include "window/script/ScriptPane.h"
#include "window/script/ScriptView.h"

#include <AnimatorView.h>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>

using namespace windowtest;
using workbench::MainWindow;
using workbench::ScriptView;

namespace {
/// Returns the output of the command line for a project.
QString printed(const char* command, const QString& project, const QString& language,
                const QStringList& options = {})
{
    return QString::fromUtf8(commandLine(
        QStringList{QLatin1String(command), project, QStringLiteral("--language"), language} +
        options));
}
} // namespace

class tst_window : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void fromModelToSavedScript_data()
    {
        const Columns<QString, QString, QString> row("desktop", "keywords", "action");
        row("German, english keywords", "German", "english", "Ö&ffnen ...");
        row("English, german keywords", "English", "german", "&Open...");
    }

    void fromModelToSavedScript()
    {
        QFETCH(const QString, desktop);
        QFETCH(const QString, keywords);
        QFETCH(const QString, action);
        const QString project = path("new.zob");
        MainWindow window;
        window.show();
        trigger(window, qPrintable(desktop));
        QTRY_COMPARE(window.findChild<QAction*>(QStringLiteral("Open"))->text(), action);
        answerFileDialog(project);
        trigger(window, "NewFromSample");
        QTRY_VERIFY(!script(window).isEmpty());
        const QString expected =
            printed("script", project, desktop.toLower(), {QStringLiteral("--keywords"), keywords});
        QVERIFY(expected.size() > 1000);
        QCOMPARE(savedScript(window, keywords), expected);
        QVERIFY(window.windowTitle().startsWith(QLatin1String("new.zob[")));
    }

    /// A click updates the script, a language change preserves the choice, Discard restores the
    /// saved choice, and Ctrl+S saves the new choice.
    void scriptFollowsAndIsSaved()
    {
        const auto window = open("saved.zob");
        const QString proposed = script(*window);
        QString chosen;
        for (const bool isSaved : {false, true}) {
            changeChoice(*window);
            QVERIFY(script(*window) != proposed);
            // The clipboard contains the script after the last click, which the pane may not show
            // yet.
            find<QDialog>(*window, "OutputDialog")
                ->findChild<QTreeWidget*>()
                ->topLevelItem(1)
                ->setCheckState(0, Qt::Unchecked);
            const QString before = script(*window);
            trigger(*window, "CopyScriptAction");
            chosen = QApplication::clipboard()->text();
            QVERIFY(chosen != before);
            trigger(*window, "German");
            QVERIFY(window->isWindowModified());
            QApplication::processEvents(); // the event for the language change
            const auto buttons =
                find<QDialog>(*window, "OutputDialog")->findChildren<QPushButton*>();
            QVERIFY(std::any_of(buttons.begin(), buttons.end(), [](const QPushButton* button) {
                return button->text() == QLatin1String("&Verwerfen");
            }));
            trigger(*window, "English");
            QCOMPARE(script(*window), chosen);
            auto dialog = find<QDialog>(*window, "OutputDialog"); // the dialog has been recreated
            const QPointer<QTreeWidget> tree = dialog->findChild<QTreeWidget*>();
            if (isSaved)
                QTest::keyClick(find<QWidget>(*window, "GroupList"), Qt::Key_S,
                                Qt::ControlModifier);
            else
                dialog->reject();
            QCOMPARE(tree && tree->topLevelItemCount() > 0, isSaved);
            QTRY_COMPARE(window->findChildren<QDialog*>(QStringLiteral("OutputDialog")).size(), 1);
            QVERIFY(!window->isWindowModified());
            QCOMPARE(script(*window), isSaved ? chosen : proposed);
        }
        QCOMPARE(script(*reopen("saved.zob")), chosen);
    }

    /// A click on a line of the script shows its plot, and the lines of the current plot are
    /// marked.
    void linesAndPlots()
    {
        const auto window = open("building.zob");
        const auto view = find<ScriptView>(*window, "ScriptText");
        const auto tree = openOutput(*window)->findChild<QTreeWidget*>();
        QTreeWidgetItem* loads = tree->topLevelItem(1);
        loads->setCheckState(0, Qt::Checked);
        QTRY_VERIFY(script(*window).contains(QLatin1String("\nLC 2 DESI 2\n")));
        const int line =
            view->lines().lineAt(script(*window).indexOf(QLatin1String("LC 2 DESI 2")));
        trigger(*window, "SheetPreviewAction");
        view->chooseLine(line);
        QCOMPARE(tree->currentItem()->text(0).left(3), QStringLiteral("2 :"));
        QVERIFY(view->marks().isOfPlot(line) && view->marks().isOfPlot(line + 1));
        QVERIFY(!view->marks().isOfPlot(line - 1) && !view->marks().isOfPlot(line + 2));
        const auto sheets = window->findChild<workbench::SheetView*>();
        const workbench::SheetPlan& plan = sheets->plan();
        QVERIFY(sheets->page() > 0);
        QCOMPARE(plan.pictures[plan.firstPicture(sheets->page())].loadCase, 2);
        tree->setCurrentItem(tree->topLevelItem(0));
        QVERIFY(!view->marks().isOfPlot(line));
        loads->setCheckState(0, Qt::Unchecked);
        QTRY_VERIFY(!script(*window).contains(QLatin1String("\nLC 2 DESI 2\n")));
        QVERIFY(view->marks().isOfPlot(view->marks().firstOfPlot));
    }

    /// A new script is searched again. The check uses the project's load cases and supports both
    /// languages.
    void findAndCheck()
    {
        const auto window = open("building.zob");
        const auto view = find<ScriptView>(*window, "ScriptText");
        const auto check = find<QToolButton>(*window, "CheckMark");
        view->setFocus();
        QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
        const auto words = find<QLineEdit>(*window, "FindWords");
        QTest::keyClicks(words, QStringLiteral("node"));
        const int hits = view->marks().hits.size();
        QCOMPARE(view->selectedText(), QStringLiteral("NODE"));
        QCOMPARE(find<QLabel>(*window, "FindCount")->text(),
                 QStringLiteral("Hit 1 of %1").arg(hits));
        QTest::keyClick(words, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(find<QLabel>(*window, "FindCount")->text(),
                 QStringLiteral("Hit %1 of %1").arg(hits));
        QTRY_COMPARE(check->text(), QStringLiteral("Check: no findings"));
        changeChoice(*window);
        QTRY_VERIFY(view->marks().hits.size() < hits);
        find<QComboBox>(*window, "KeywordLanguage")->setCurrentIndex(0);
        QVERIFY(check->text().isEmpty());
        QTRY_COMPARE(check->text(), QStringLiteral("Check: no findings"));
        window->findChild<workbench::ScriptPane*>()->setScript(
            script(*window).replace(QLatin1String("LAST"), QLatin1String("LOAD")));
        QTRY_VERIFY(check->text().startsWith(QLatin1String("Check: findings: ")));
        for (int times = 0; times < 2; ++times) { // the only finding follows itself
            check->click();
            QCOMPARE(view->selectedText(), QStringLiteral("LOAD"));
        }
        QVERIFY(
            check->text().endsWith(QLatin1String("\"LOAD\" is a keyword of the other language")));
        QTest::keyClick(words, Qt::Key_Escape);
        QVERIFY(view->marks().hits.isEmpty() && window->focusWidget() == view);
    }

    void commandLineTakesTheChoice_data()
    {
        const Columns<QString, QString> row("buttons", "line");
        row("own view", "ScaleGroup_0 PicturesGroup_0 PerspectiveGroup_4",
            "\nSIZE -URS SC 50*1.e+10 MARG NO FORM STAN\nVIEW TYPE STAN ");
        row("landscape", "FormatGroup_1 PerspectiveGroup_1",
            "\nSIZE URS SC 0 MARG NO FORM STAN\nVIEW TYPE EGXZ ");
    }

    /// The command line prints the script that the window saved.
    void commandLineTakesTheChoice()
    {
        QFETCH(const QString, buttons);
        const auto window = open("choice.zob");
        const auto of = [this](const char* command, const QStringList& options) {
            return printed(command, path("choice.zob"), QStringLiteral("english"), options);
        };
        const QString proposed = of("script", {});
        const auto dialog = openOutput(*window);
        dialog->findChild<QTableWidget*>()->item(0, 1)->setCheckState(Qt::Unchecked);
        find<QComboBox>(*dialog, "box_scale")->setCurrentText(QStringLiteral("1:50"));
        find<QLineEdit>(*dialog, "m_boxedEdit_edit")->setText(QStringLiteral("3.5"));
        const QStringList common{QStringLiteral("Check: Filled Isolines"),
                                 QStringLiteral("ContentGroup_1")};
        for (const QString& name : buttons.split(QLatin1Char(' ')) + common)
            find<QAbstractButton>(*dialog, qPrintable(name))->click();
        QTest::keyClick(find<QWidget>(*dialog, "OutputView"), Qt::Key_Left);
        const auto plots = dialog->findChild<QTreeWidget*>();
        plots->topLevelItem(0)->child(0)->setCheckState(0, Qt::Unchecked); // Overview
        dialog->accept();
        QString saved;
        for (const QString& keywords : {QStringLiteral("german"), QStringLiteral("english")}) {
            saved = savedScript(*window, keywords);
            QCOMPARE(of("script", {QStringLiteral("--keywords"), keywords}), saved);
        }
        QCOMPARE(of("tree", {}), treeText(plots));
        QFETCH(const QString, line); // the result contains the changes
        for (const QString& part : {line, QStringLiteral("\nSCHH H6 0.35\n"),
                                    QStringLiteral("FILLI=AREA\n"), QStringLiteral("\nBRIC SHOW ")})
            QVERIFY2(saved.contains(part), qPrintable(saved));
        for (const char* part : {"\nMATE ", "\nLC 1 ", " STAN 1 -2 1 "})
            QVERIFY2(!saved.contains(QLatin1String(part)), qPrintable(saved));
        QCOMPARE(of("script", {QStringLiteral("--proposed")}), proposed);
    }

    /// A camera rotated by the user is restored even if another view was selected and saved.
    void turnedViewIsSaved()
    {
        auto window = open("turned.zob");
        trigger(*window, "Output");
        QTRY_VERIFY(!find<QWidget>(*window, "OutputView")->isEnabled()); // the first view is sent
        find<QAbstractButton>(*window, "FormatGroup_1")->click();
        const std::pair<const char*, const char*> hints[] = {
            {"OutputView", "Choose “User defined” to turn the model."},
            {"PicturesGroup_0", "A landscape page has one picture."}};
        for (const auto& [widget, hint] : hints) {
            QTest::mouseClick(find<QWidget>(*window, widget), Qt::LeftButton);
            QTRY_COMPARE(QToolTip::text(), QString::fromUtf8(hint));
        }
        find<QAbstractButton>(*window, "PerspectiveGroup_4")->click();
        QTest::keyClick(find<QWidget>(*window, "OutputView"), Qt::Key_Left);
        const auto camera = [&window] { // for both keyword languages
            return QRegularExpression(QStringLiteral("TYPE? STAN (.*)"))
                .match(script(*window))
                .captured(1);
        };
        QTRY_VERIFY(!camera().isEmpty() && camera() != QLatin1String("1 -2 1 ROTA 0"));
        const QString turned = camera();
        find<QAbstractButton>(*window, "PerspectiveGroup_1")->click();
        const auto cases = find<QTableWidget>(*window, "LoadCases");
        for (const Qt::CheckState state : {Qt::Unchecked, Qt::Checked})
            cases->item(0, 1)->setCheckState(state);
        {
            const workbench::CameraRollback users;
            find<AnimatorView>(*window, "OutputView")->slotViewControl(AnimatorStoreCamera, 0.0);
            QCOMPARE(vkd::dbo::getAnimatorPerspektive(0, 1), QStringLiteral("0 -1 0 ROTA 0"));
        }
        find<QDialog>(*window, "OutputDialog")->accept();
        window = reopen("turned.zob");
        trigger(*window, "Output");
        QTRY_VERIFY(script(*window).contains(QLatin1String("EGXZ")));
        find<QAbstractButton>(*window, "PerspectiveGroup_4")->click();
        QTRY_COMPARE(camera(), turned);
    }

    /// A dialog is recreated with the same state after a language change and after a restart.
    void dialogStateIsRestored()
    {
        QStringList saved = QStringLiteral("current top words 1 found A B").split(QLatin1Char(' '));
        QCOMPARE(workbench::TreeViewState::fromStrings(saved).toStrings(), saved);
        saved[3] = QLatin1Char('0');
        QCOMPARE(workbench::TreeViewState::fromStrings(saved).toStrings(), saved);
        const QRect place(20, 30, 1234, 765);
        const auto textDialog = [](const MainWindow& window) {
            trigger(window, "TextOutput");
            return find<QDialog>(window, "TextOutputDialog");
        };
        auto window = open("places.zob");
        textDialog(*window)->setGeometry(place);
        openOutput(*window);
        auto tree = find<QDialog>(*window, "OutputDialog")->findChild<QTreeWidget*>();
        tree->collapseItem(tree->topLevelItem(1));
        tree->setCurrentItem(tree->topLevelItem(2)->child(1));
        tree->scrollToItem(tree->topLevelItem(2), QTreeWidget::PositionAtTop);
        const int top = tree->verticalScrollBar()->value();
        QVERIFY(top > 0);
        trigger(*window, "German");
        QCOMPARE(find<QDialog>(*window, "TextOutputDialog")->geometry(), place); // longer labels
        tree = find<QDialog>(*window, "OutputDialog")->findChild<QTreeWidget*>();
        const auto compareTree = [&] {
            QVERIFY(!tree->topLevelItem(1)->isExpanded());
            QCOMPARE(tree->currentItem(), tree->topLevelItem(2)->child(1));
            QCOMPARE(tree->verticalScrollBar()->value(), top);
        };
        compareTree();
        auto tabs = find<QDialog>(*window, "OutputDialog")->findChild<QTabWidget*>();
        tabs->setCurrentIndex(1);
        trigger(*window, "English");
        tabs = find<QDialog>(*window, "OutputDialog")->findChild<QTabWidget*>();
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(textDialog(*window)->geometry(), place);
        tabs->setCurrentIndex(0);
        trigger(*find<QDialog>(*window, "OutputDialog"), "findPlots");
        find<QLineEdit>(*window, "searchWords")->setText(QStringLiteral("displ"));
        trigger(*find<QDialog>(*window, "OutputDialog"), "findNextPlot");
        const QString hit = find<QLabel>(*window, "searchCount")->text();
        QVERIFY(hit.startsWith(QLatin1String("Hit 2 of ")));
        for (const char* language : {"German", "English"})
            trigger(*window, language);
        find<QDialog>(*window, "OutputDialog")->accept();
        window = reopen("places.zob");
        const QDialog* dialog = openOutput(*window);
        tree = dialog->findChild<QTreeWidget*>();
        QCOMPARE(dialog->focusWidget(), tree);
        QVERIFY(tree->topLevelItem(0)->isHidden());
        QCOMPARE(find<QLabel>(*dialog, "searchCount")->text(), hit);
        QTest::keyClick(tree, Qt::Key_Escape);
        compareTree();
        window = open("again.zob");
        QCOMPARE(textDialog(*window)->geometry(), place);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_window)
#include "tst_window.moc"
